#ifndef KELIFC_GEO_READING_PROFILE_SECTION_H_
#define KELIFC_GEO_READING_PROFILE_SECTION_H_

#include "kelifc/building/profile.h"
#include "kelifc/geo/geo_object.h"
#include "kelifc/geo/structure.h"

namespace KelIFC {

/// Sets the section of an element from a profile. A rectangle, a circle and a T with the flange on
/// top become sections of their kinds. Any other profile becomes a polygon with the points of its
/// outline, and so does a rectangle that lies askew.
HRESULT EnsureProfileSection(CoGeoStructure& structure, CoGeoObject& element,
                             const BuildingProfile& profile);

}  // namespace KelIFC

#endif  // KELIFC_GEO_READING_PROFILE_SECTION_H_
