#ifndef KELIFC_BUILDING_PROFILE_LOOP_CHECK_H_
#define KELIFC_BUILDING_PROFILE_LOOP_CHECK_H_

#include "kelifc/building/solid/slice.h"

namespace KelIFC::building {

/// Loops that come closer than this only touch, in metres.
constexpr double kTouch = 1e-5;

/// True if no loop crosses itself or another one, and each hole is inside of the outer loop and
/// outside of the other holes. Loops may touch. The outer loop must be counter-clockwise and the
/// holes clockwise. The time is n log n for n points in total; regions of at most 512 points are
/// checked pair by pair, which is exact where loops touch.
bool IsSimple(const FlatRegion& region);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_PROFILE_LOOP_CHECK_H_
