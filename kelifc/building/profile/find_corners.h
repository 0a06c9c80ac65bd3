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

struct FoundCircle {
  Point2 centre;
  double radius = 0.0;
};

/// The circle that a loop of at least 12 chords approximates: all its points lie on the circle
/// within kShapeTolerance. None if there is none. Linear time.
std::optional<FoundCircle> FindCircle(const Outline& loop);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_PROFILE_FIND_CORNERS_H_
