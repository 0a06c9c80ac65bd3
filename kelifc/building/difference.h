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

/// The text of an enumerator: "guid" or "geometry". The text lives as long as the library is
/// loaded.
KELIFC_API std::string_view TextOf(MatchedBy matchedBy);

/// Which changes count, and how far apart two elements may be that are matched by geometry.
struct ComparisonOptions {
  double leastMove = 1e-3;            ///< a smaller move does not count, in metres
  double leastRotation = 1e-3;        ///< a smaller rotation does not count, in radians
  double leastLengthening = 1e-3;     ///< a smaller difference of lengths does not count, in metres
  double largestMatchDistance = 0.5;  ///< elements farther apart do not match, in metres
};

/// An element that both revisions contain, and what differs.
struct ElementChange {
  std::size_t oldId = 0;                   ///< the instance number in the old revision
  std::size_t newId = 0;                   ///< the instance number in the new revision
  MatchedBy matchedBy = MatchedBy::kGuid;  ///< how the two were found to be one element

  /// How far the element moved, in metres: of a member the smaller displacement of its two ends, of
  /// another element the smaller displacement of the lowest and the highest corner of its box. An
  /// element that grows at one end did not move. 0 if the move does not count.
  double moved = 0.0;

  /// How far the element turned, in radians: of a member the larger one of the angle between its
  /// axes and the angle of its profile about the axis, of a surface the angle between its normals.
  /// 0 if the rotation does not count, and for a body.
  double rotated = 0.0;

  /// The old and the new section. The section of a member is the designation or the name of its
  /// profile, or its shape and sizes if it has neither; of a surface it is the thickness; of a body
  /// it is "". None if the sections are equal.
  std::optional<std::pair<std::string, std::string>> profile;

  /// The old and the new length, in metres: of a member that of its axis, of a surface that of its
  /// outline and holes, of a curved wall that of its base line, of a body that of the diagonal of
  /// its box. None if the difference does not count, or if the two are of different kinds.
  std::optional<std::pair<double, double>> length;
};

/// What differs between two revisions of a building. Elements are named by their instance numbers.
struct BuildingDifference {
  std::vector<std::size_t> added;      ///< elements of the new revision only, in its order
  std::vector<std::size_t> removed;    ///< elements of the old revision only, in its order
  std::vector<ElementChange> changed;  ///< in the order of the old revision
  std::size_t same = 0;                ///< how many elements did not change
};

/// Compares the elements of two revisions of a building. Elements with the same GlobalId match; if
/// several elements of a revision have the same one, they match in their order. The other elements
/// match by geometry: each matches the nearest element of the same class, preferably one with the
/// same section. The time is O(n log n).
KELIFC_API BuildingDifference Compare(const Building& oldBuilding, const Building& newBuilding,
                                      const ComparisonOptions& options = {});

}  // namespace KelIFC

#endif  // KELIFC_BUILDING_DIFFERENCE_H_
