#ifndef KELIFC_BUILDING_BUILD_READING_CACHE_H_
#define KELIFC_BUILDING_BUILD_READING_CACHE_H_

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>

#include "kelifc/building/build/idealise_reading.h"

namespace KelIFC::building::idealising {

/// The result of the search for the best reading of a subject, in the local coordinates of its
/// boundary. None of it depends on the place of the element in the world.
struct FoundReading {
  std::optional<Reading> best;  ///< without its solid
  BuildingBox box;              ///< of the solid of `best`
  bool isSeveral = false;       ///< the boundary was found to fall into several parts
};

/// Keeps what was found for the subjects of a model. Many elements of a building are equal except
/// for their place, so the search is made once for them. It is not for several threads at once.
class ReadingCache {
 public:
  /// Returns what was found for a subject with this key; null if it is not kept.
  const FoundReading* Find(const std::string& key) const {
    const auto found = entries.find(key);
    return found == entries.end() ? nullptr : &found->second;
  }

  /// Keeps what was found for the subject with this key. Memory is bounded: if the keys together
  /// are too long, all other entries are removed first.
  void Keep(std::string key, const FoundReading& found) {
    constexpr std::size_t kMostBytes = std::size_t{1} << 24;
    bytes += key.size();
    if (bytes > kMostBytes) {
      entries.clear();
      bytes = key.size();
    }
    entries.emplace(std::move(key), found);
  }

 private:
  std::unordered_map<std::string, FoundReading> entries;
  std::size_t bytes = 0;  // of all keys
};

}  // namespace KelIFC::building::idealising

#endif  // KELIFC_BUILDING_BUILD_READING_CACHE_H_
