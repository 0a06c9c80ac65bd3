#ifndef KELIFC_BUILDING_READ_PROFILES_H_
#define KELIFC_BUILDING_READ_PROFILES_H_

#include <cstddef>

#include "kelifc/building/facts/number_map.h"
#include "kelifc/building/facts/profile_facts.h"
#include "kelifc/building/read/read_context.h"

namespace KelIFC::building {

/// Reads profiles. Each one is read once.
class ProfileReader {
 public:
  explicit ProfileReader(ReadContext& reading) : context(reading) {}

  /// The profile of an instance; null, and `why`, if it cannot be read.
  ProfilePointer Read(const Instance& profile, Unreadable& why);

  /// The same for an attribute of a solid.
  ProfilePointer Read(const Instance& solid, Attribute attribute, Unreadable& why);

 private:
  struct Entry {
    ProfilePointer profile;
    Unreadable why;
  };

  Entry Make(const Instance& profile, std::size_t depth);
  ProfilePointer ReadNested(const Instance& profile, std::size_t depth, Unreadable& why);
  bool ReadShape(const Instance& profile, ProfileFacts& facts, Unreadable& why);
  void ReadWebOfT(const Instance& profile, ProfileFacts& facts) const;
  bool ReadRail(const Instance& profile, ProfileFacts& facts, Unreadable& why);
  bool ReadArbitrary(const Instance& profile, ProfileFacts& facts, Unreadable& why);
  bool ReadCentreLine(const Instance& profile, ProfileFacts& facts, Unreadable& why);
  bool ReadComposite(const Instance& profile, std::size_t depth, ProfileFacts& facts,
                     Unreadable& why);
  bool ReadDerived(const Instance& profile, std::size_t depth, ProfileFacts& facts,
                   Unreadable& why);
  bool ReadPosition(const Instance& profile, ProfileFacts& facts, Unreadable& why);

  ReadContext& context;
  NumberMap<Entry> entries;
};

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_READ_PROFILES_H_
