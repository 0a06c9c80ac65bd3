#ifndef KELIFC_SERVER_DETAIL_GUID_INDEX_H_
#define KELIFC_SERVER_DETAIL_GUID_INDEX_H_

#include <cstddef>
#include <cstdint>
#include <vector>

#include "kelifc/platform/guid.h"

namespace KelIFC::detail {

/// Finds the position of an instance in the registry by its global identifier, in constant time.
/// It stores positions instead of pointers, so that a deleted instance is not found again.
class GuidIndex {
 public:
  /// The position that means "not found"; no registry is that large.
  static constexpr std::uint32_t kNone = 0xFFFFFFFF;

  GuidIndex() = default;

  /// An empty index with memory for so many identifiers.
  explicit GuidIndex(std::size_t count);

  struct Entry {
    _GUID guid;
    std::uint32_t position;
  };

  /// Adds an identifier. Of several positions with one identifier the first one stays.
  void Add(const _GUID& guid, std::uint32_t position);

  /// Adds the entries [begin, end) in their order. This is faster than to add each by itself,
  /// because the memory for all of them is prefetched first.
  void AddBatch(const Entry* begin, const Entry* end);

  /// Returns the position of an identifier, kNone if it was not added.
  std::uint32_t Find(const _GUID& guid) const;

  bool IsEmpty() const { return entries.empty(); }

 private:
  std::size_t HomeOf(const _GUID& guid) const;
  std::size_t SlotOf(const _GUID& guid) const;
  void Resize(std::size_t slotCount);

  std::vector<Entry> entries;
  std::vector<std::uint32_t> table;  // open addressing: indices of entries, kNone if free
  unsigned shift = 64;               // from a hash to the home slot
  std::uint64_t factors[2] = {};     // of the hash; random, so that no file can choose collisions
};

}  // namespace KelIFC::detail

#endif  // KELIFC_SERVER_DETAIL_GUID_INDEX_H_
