#ifndef KELIFC_BUILDING_BUILD_IDEALISE_PROFILE_H_
#define KELIFC_BUILDING_BUILD_IDEALISE_PROFILE_H_

#include <string>

#include "kelifc/building/profile/make_profile.h"
#include "kelifc/building/solid/slice.h"

namespace KelIFC::building::idealising {

/// A profile that was found in a plane, and where it lies in it.
struct FoundProfile {
  BuildingProfile profile;
  PlaneFrame frame;  ///< the origin is the centroid, x is y of the profile, and y is z
};

/// The profile of a region. Its axes are those in which a shape is recognised; if none is, the
/// principal axes with iy >= iz. Of the possible axes those nearest to the plane's are taken.
FoundProfile FindProfile(const FlatRegion& region, const PlaneFrame& plane,
                         const std::string& name);

/// The profile of a region in the axes of `frame`, which lies in the plane of `plane`. Its origin
/// is the centroid, the frame moves there.
FoundProfile ProfileInFrame(const FlatRegion& region, const PlaneFrame& plane, PlaneFrame frame,
                            const std::string& name);

/// Mirrors a profile: z becomes -z. A shape that stays what it is keeps its points.
void MirrorProfile(BuildingProfile& profile);

}  // namespace KelIFC::building::idealising

#endif  // KELIFC_BUILDING_BUILD_IDEALISE_PROFILE_H_
