#ifndef KELIFC_BUILDING_BUILD_MADE_PROFILES_H_
#define KELIFC_BUILDING_BUILD_MADE_PROFILES_H_

#include <map>
#include <memory>
#include <optional>
#include <utility>

#include "kelifc/building/facts/keyed_cache.h"
#include "kelifc/building/facts/solid_facts.h"
#include "kelifc/building/profile/make_profile.h"

namespace KelIFC::building {

/// Keeps the profiles that were made from facts, since many elements of a model share them or have
/// equal ones. It is not for several threads at once.
class MadeProfiles {
 public:
  /// The profile of the facts, with all lengths multiplied by a factor; none as for MakeProfile.
  /// The reference is valid as long as this object. `facts` must not be null.
  const std::optional<PlacedProfile>& Get(const ProfilePointer& facts, double scale);

 private:
  using Made = std::shared_ptr<const std::optional<PlacedProfile>>;

  struct Entry {
    ProfilePointer facts;  // keeps the address from being used again
    Made profile;
  };

  Made MakeOnce(const ProfilePointer& facts, double factor);

  // Addresses are only looked up; nothing depends on their order.
  std::map<std::pair<const ProfileFacts*, double>, Entry> entries;
  KeyedCache<Made> equal;  // those of other facts with the same values
};

/// The facts of a profile, with all lengths multiplied by a factor.
ProfileFacts Scaled(const ProfileFacts& facts, double factor);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_BUILD_MADE_PROFILES_H_
