#ifndef KELIFC_BUILDING_FACTS_KEYED_CACHE_H_
#define KELIFC_BUILDING_FACTS_KEYED_CACHE_H_

#include <cstddef>
#include <string>
#include <unordered_map>
#include <utility>

namespace KelIFC::building {

/// Keeps results under keys that hold all the input of a computation. It is not for several threads
/// at once.
template <class T>
class KeyedCache {
 public:
  /// Returns the result that is kept under a key; null if there is none. It is valid until the next
  /// Keep.
  const T* Find(const std::string& key) const {
    const auto found = entries.find(key);
    return found == entries.end() ? nullptr : &found->second;
  }

  /// An empty text for the key to look up. The next call invalidates it.
  std::string& Buffer() {
    buffer.clear();
    return buffer;
  }

  /// Keeps a result. Memory is bounded: if the keys are too long together, all other results are
  /// removed first.
  void Keep(const std::string& key, T result) {
    constexpr std::size_t kMostBytes = std::size_t{1} << 24;
    bytes += key.size();
    if (bytes > kMostBytes) {
      entries.clear();
      bytes = key.size();
    }
    entries.emplace(key, std::move(result));
  }

 private:
  std::unordered_map<std::string, T> entries;
  std::size_t bytes = 0;  // of all keys
  std::string buffer;
};

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_FACTS_KEYED_CACHE_H_
