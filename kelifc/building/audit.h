#ifndef KELIFC_BUILDING_AUDIT_H_
#define KELIFC_BUILDING_AUDIT_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "kelifc/building/building.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

constexpr std::size_t kLossReasonCount = 11;

/// What became of the products of one class. members + surfaces + bodies + decomposed + the sum of
/// lost == products.
struct ClassAudit {
  std::string className;
  BuildingTotals totals;                                ///< of this class
  std::array<std::size_t, kLossReasonCount> lost = {};  ///< by reason
};

/// What is wrong with the elevation of a storey.
enum class ElevationFinding : std::uint8_t {
  kNone,
  kMissing,  ///< it has none
  kEqual,    ///< another storey has the same, within 1 mm
};

/// Compares the storeys that elements state with those in which they are by height.
struct StoreyAudit {
  std::size_t id = 0;
  std::string name;
  double elevation = 0.0;
  ElevationFinding finding = ElevationFinding::kNone;
  std::size_t stated = 0;              ///< so many elements state it
  std::size_t byHeight = 0;            ///< so many elements are in it by height
  std::vector<std::size_t> differing;  ///< elements that state it, but are in another by height
};

struct BuildingAudit {
  std::vector<ClassAudit> classes;   ///< by name
  std::vector<StoreyAudit> storeys;  ///< as in the building

  /// Some storeys have an elevation, and others do not.
  bool hasMixedElevations = false;
};

/// Counts what was read of a building and what was lost, and checks its storeys.
KELIFC_API BuildingAudit Audit(const Building& building);

}  // namespace KelIFC

#endif  // KELIFC_BUILDING_AUDIT_H_
