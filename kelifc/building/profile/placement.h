#ifndef KELIFC_BUILDING_PROFILE_PLACEMENT_H_
#define KELIFC_BUILDING_PROFILE_PLACEMENT_H_

#include "kelifc/building/facts/profile_facts.h"

namespace KelIFC::building {

/// What an affine map of the plane does.
struct Placement {
  bool isUsable = false;   ///< finite, and it does not flatten the plane
  bool isSimilar = false;  ///< all lengths grow alike, and circles stay circles
  bool isMirrored = false;
  double scale = 1.0;     ///< the largest factor along an axis
  double rotation = 0.0;  ///< of the x axis, in radians
};

Placement PlacementOf(const Transform2& position);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_PROFILE_PLACEMENT_H_
