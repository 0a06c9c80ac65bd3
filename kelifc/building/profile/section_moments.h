#ifndef KELIFC_BUILDING_PROFILE_SECTION_MOMENTS_H_
#define KELIFC_BUILDING_PROFILE_SECTION_MOMENTS_H_

#include "kelifc/building/facts/contour.h"
#include "kelifc/building/profile/make_profile.h"

namespace KelIFC::building {

/// The properties of a region whose arcs are arcs, not chords. All are 0 if the region has no area
/// or if its points are not finite.
RegionProperties PropertiesOf(const Region& region);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_PROFILE_SECTION_MOMENTS_H_
