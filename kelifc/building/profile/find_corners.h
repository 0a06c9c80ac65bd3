#ifndef KELIFC_BUILDING_PROFILE_FIND_CORNERS_H_
#define KELIFC_BUILDING_PROFILE_FIND_CORNERS_H_

#include <cstddef>
#include <optional>
#include <vector>

#include "kelifc/building/profile.h"
#include "kelifc/building/profile/rounded_contour.h"

namespace KelIFC::building {

/// Two outlines are equal if no point of one is farther than this from the other, in metres.
constexpr double kShapeTolerance = 5e-4;

/// The corners of a counter-clockwise loop. Chords that turn a corner along an arc, tangent to the
/// edges beside it, become one corner with a radius; half a circle becomes two. The other points
/// are corners without a radius. Empty if there are more corners than `limit`. Linear time.
std::vector<RoundedCorner> FindCorners(const Outline& loop, std::size_t limit);

/// The corners between the `count` longest edges of a counter-clockwise loop. The points between
/// two of these edges become one corner with the radius of the arc that is tangent to both edges at
/// their ends; they need not be regular, as those of a slice through facets are not. Empty if the
/// loop has no more edges, if there is no such arc, or if only one edge cuts the corner. Whether
/// the points lie near the arcs is not checked. Linear time.
std::vector<RoundedCorner> FindCornersBetween(const Outline& loop, std::size_t count);

struct FoundCircle {
  Point2 centre;
  double radius = 0.0;
};

/// The circle that a loop of at least 12 chords approximates: all its points lie on the circle
/// within kShapeTolerance. None if there is none. Linear time.
std::optional<FoundCircle> FindCircle(const Outline& loop);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_PROFILE_FIND_CORNERS_H_
