#ifndef KELIFC_BUILDING_SOLID_UNITE_REGIONS_H_
#define KELIFC_BUILDING_SOLID_UNITE_REGIONS_H_

#include <vector>

#include "kelifc/building/solid/slice.h"

namespace KelIFC::building {

/// The union of regions of one plane, the largest first. Regions may overlap, touch or lie apart.
/// Points that are nearer to each other than `tolerance`, in metres, are one, and gaps that are
/// narrower close. Returns the regions as they are if they have more than 4000 points or cross each
/// other very often, or if the edges of the union do not form loops.
std::vector<FlatRegion> UniteRegions(std::vector<FlatRegion> regions, double tolerance);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_SOLID_UNITE_REGIONS_H_
