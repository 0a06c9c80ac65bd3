#ifndef KELIFC_BUILDING_BUILD_FIRST_USE_H_
#define KELIFC_BUILDING_BUILD_FIRST_USE_H_

#include <cstddef>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace KelIFC::building {

/// A list of things in the order of their first use. Things with equal keys are one.
template <class Thing>
class FirstUse {
 public:
  /// Returns the index of the thing with a key. If there is none yet, adds `thing`.
  std::size_t Add(std::string key, Thing thing) {
    const auto [entry, isNew] = indices.try_emplace(std::move(key), things.size());
    if (isNew) things.push_back(std::move(thing));
    return entry->second;
  }

  /// Returns the thing with a key; null if there is none. It is valid until the next Add.
  const Thing* Find(const std::string& key) const {
    const auto entry = indices.find(key);
    return entry == indices.end() ? nullptr : &things[entry->second];
  }

  const std::vector<Thing>& Get() const { return things; }
  std::vector<Thing> Take() { return std::move(things); }

 private:
  std::vector<Thing> things;
  std::unordered_map<std::string, std::size_t> indices;
};

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_BUILD_FIRST_USE_H_
