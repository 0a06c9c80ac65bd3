#ifndef KELIFC_BUILDING_READ_PROFILE_POSITIONS_H_
#define KELIFC_BUILDING_READ_PROFILE_POSITIONS_H_

#include <span>

#include "kelifc/building/read/position_row.h"

namespace KelIFC::building {

/// The positions of the attributes of profiles, other than the name and the position of a profile.
std::span<const PositionRow> ProfilePositions();

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_READ_PROFILE_POSITIONS_H_
