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

/// The number of the enumerators of LossReason.
constexpr std::size_t kLossReasonCount = static_cast<std::size_t>(LossReason::kLimit) + 1;

/// What became of the products of one class.
struct ClassAudit {
  std::string className;                                ///< the entity, such as "IfcColumn"
  BuildingTotals totals;                                ///< the counts of this class
  std::array<std::size_t, kLossReasonCount> lost = {};  ///< by LossReason; the sum is totals.lost
};

/// What is wrong with the elevation of a storey.
enum class ElevationFinding : std::uint8_t {
  kNone,     ///< nothing
  kMissing,  ///< the storey has no elevation
  kEqual,    ///< another storey has the same elevation, within 1 mm
};

/// A storey and its elements: those that it contains in the file, and those that are in it by their
/// height.
struct StoreyAudit {
  std::size_t id = 0;                                  ///< the instance number of the storey
  std::string name;                                    ///< the name of the storey, in UTF-8
  double elevation = 0.0;                              ///< in metres, as BuildingStorey::elevation
  ElevationFinding finding = ElevationFinding::kNone;  ///< what is wrong with the elevation
  std::size_t stated = 0;    ///< how many elements the storey contains in the file
  std::size_t byHeight = 0;  ///< how many elements are in the storey by their height

  /// The instance numbers of the elements that the storey contains in the file, but that are in
  /// another storey by their height. In the order of the file.
  std::vector<std::size_t> differing;
};

/// What Audit finds.
struct BuildingAudit {
  std::vector<ClassAudit> classes;   ///< by className
  std::vector<StoreyAudit> storeys;  ///< in the order of Building::storeys

  /// True if some storeys have an elevation and others do not.
  bool hasMixedElevations = false;
};

/// Counts the products of a building by class and by loss reason, and checks its storeys.
KELIFC_API BuildingAudit Audit(const Building& building);

}  // namespace KelIFC

#endif  // KELIFC_BUILDING_AUDIT_H_
