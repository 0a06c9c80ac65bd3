#ifndef KELIFC_BUILDING_BUILD_PROFILE_KEY_H_
#define KELIFC_BUILDING_BUILD_PROFILE_KEY_H_

#include <string>

#include "kelifc/building/profile.h"

namespace KelIFC::building {

/// A key that is equal for equal profiles and no others. Profiles are equal if their shapes and
/// sizes, rounded to 0.01 mm, are, and their outlines lie the same way: a mirrored angle is another
/// profile. Of kArbitrary all points count.
std::string ProfileKey(const BuildingProfile& profile);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_BUILD_PROFILE_KEY_H_
