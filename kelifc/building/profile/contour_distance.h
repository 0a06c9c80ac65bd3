#ifndef KELIFC_BUILDING_PROFILE_CONTOUR_DISTANCE_H_
#define KELIFC_BUILDING_PROFILE_CONTOUR_DISTANCE_H_

#include "kelifc/building/facts/contour.h"
#include "kelifc/building/profile.h"

namespace KelIFC::building {

/// True if all points of a loop lie within `tolerance` metres of a contour. The time is the product
/// of their sizes.
bool AreNear(const Outline& loop, const Contour& contour, double tolerance);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_PROFILE_CONTOUR_DISTANCE_H_
