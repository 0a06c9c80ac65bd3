#ifndef KELIFC_BUILDING_DIFFERENCE_H_
#define KELIFC_BUILDING_DIFFERENCE_H_

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kelifc/building/building.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

/// How an element of one revision was found in the other.
enum class MatchedBy : std::uint8_t {
  kGuid,      ///< both have the same GlobalId
  kGeometry,  ///< neither GlobalId is in the other revision; same class, place and size
};

/// "guid" or "geometry".
KELIFC_API std::string_view TextOf(MatchedBy matchedBy);

/// Which changes count, and how far apart elements may be that are matched by geometry. Metres, and
/// radians.
struct ComparisonOptions {
  double leastMove = 1e-3;
  double leastRotation = 1e-3;
  double leastLengthening = 1e-3;
  double largestMatchDistance = 0.5;
};

/// An element that both revisions have, with what differs.
struct ElementChange {
  std::size_t oldId = 0;
  std::size_t newId = 0;
  MatchedBy matchedBy = MatchedBy::kGuid;

  /// Metres. Of a member: the smaller displacement of its two ends, so a member that grows at one
  /// end did not move. Otherwise the smaller displacement of the lowest and the highest corner of
  /// the element's box.
  double moved = 0.0;

  /// Radians: the angle between the old and the new axis of a member, and of its profile about the
  /// axis; the angle between the old and the new normal of a surface.
  double rotated = 0.0;

  /// What describes the section of an element: of a member the designation or name of its profile,
  /// otherwise its shape with its sizes; of a surface its thickness; of a body "". None if the
  /// sections are equal.
  std::optional<std::pair<std::string, std::string>> profile;

  /// Metres: the length of the axis of a member, of the outline and the holes of a surface, of the
  /// base line of a curved wall, of the diagonal of the box of a body. None if they are equal.
  std::optional<std::pair<double, double>> length;
};

struct BuildingDifference {
  std::vector<std::size_t> added;      ///< elements of the new revision only
  std::vector<std::size_t> removed;    ///< elements of the old revision only
  std::vector<ElementChange> changed;  ///< in the order of the old revision
  std::size_t same = 0;                ///< so many elements did not change
};

/// Compares the elements of two revisions of a building. An element is matched with the one of the
/// same GlobalId. If several have the same one, they are matched in their order. The others are
/// matched by geometry: the nearest element of the same class, preferably with the same section.
/// n log n time.
KELIFC_API BuildingDifference Compare(const Building& oldBuilding, const Building& newBuilding,
                                      const ComparisonOptions& options = {});

}  // namespace KelIFC

#endif  // KELIFC_BUILDING_DIFFERENCE_H_
