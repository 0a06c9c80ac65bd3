#ifndef KELIFC_BUILDING_PROFILE_SIMPLIFY_H_
#define KELIFC_BUILDING_PROFILE_SIMPLIFY_H_

#include "kelifc/building/profile.h"

namespace KelIFC::building {

/// Points closer than this are one, and points closer than this to a line are on it, in metres.
constexpr double kSamePoint = 1e-7;

/// A closed line without repeated points, without points in the middle of a straight edge, and
/// without spikes (edges that go forth and back). The first point that stays is the first one.
/// Empty if less than three points are left. Linear time.
Outline Simplify(const Outline& loop);

/// The signed area of a loop, positive if it is counter-clockwise.
double AreaOf(const Outline& loop);

/// The length of a closed line.
double PerimeterOf(const Outline& loop);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_PROFILE_SIMPLIFY_H_
