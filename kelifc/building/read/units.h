#ifndef KELIFC_BUILDING_READ_UNITS_H_
#define KELIFC_BUILDING_READ_UNITS_H_

#include "kelifc/building/building.h"
#include "kelifc/building/read/instance.h"

namespace KelIFC::building {

/// The units that a project assigns.
struct Units {
  BuildingLengthUnit length{"METRE", 1.0};
  double radians = 1.0;  ///< of one unit of plane angle
};

/// Metres and radians for what the project does not assign, and for factors that are not positive
/// finite numbers.
Units ReadUnits(const Instance& project);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_READ_UNITS_H_
