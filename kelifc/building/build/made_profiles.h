#ifndef KELIFC_BUILDING_BUILD_MADE_PROFILES_H_
#define KELIFC_BUILDING_BUILD_MADE_PROFILES_H_

#include <map>
#include <optional>
#include <utility>

#include "kelifc/building/facts/solid_facts.h"
#include "kelifc/building/profile/make_profile.h"

namespace KelIFC::building {

/// Keeps the profiles that were made from facts, since many elements of a model share them. It is
/// not for several threads at once.
class MadeProfiles {
 public:
  /// The profile of the facts, with all lengths multiplied by a factor; none as for MakeProfile.
  /// The reference is valid as long as this object. `facts` must not be null.
  const std::optional<PlacedProfile>& Get(const ProfilePointer& facts, double scale);

 private:
  struct Entry {
    ProfilePointer facts;  // keeps the address from being used again
    std::optional<PlacedProfile> profile;
  };

  // Addresses are only looked up; nothing depends on their order.
  std::map<std::pair<const ProfileFacts*, double>, Entry> entries;
};

/// The facts of a profile, with all lengths multiplied by a factor.
ProfileFacts Scaled(const ProfileFacts& facts, double factor);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_BUILD_MADE_PROFILES_H_
