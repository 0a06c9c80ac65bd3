#ifndef KELIFC_CORE_DETAIL_POSITION_INDEX_H_
#define KELIFC_CORE_DETAIL_POSITION_INDEX_H_

#include <cstddef>
#include <cstdint>
#include <memory>

#include "kelifc/platform/export.h"

namespace KelIFC::detail {

/// Finds the first element with a key in a large set. The index stores only positions, in at most
/// eight bytes per element on average. The elements hold the keys, and `keyAt` is a function from a
/// position, counted from 0, to a key. The index contains the first GetCount() elements. The set
/// that owns the index drops it when one of these elements may have changed.
class PositionIndex {
 public:
  static constexpr std::uint32_t kNotFound = ~std::uint32_t{0};

  std::size_t GetCount() const { return count; }
  void Drop() {
    slots.reset();
    mask = count = 0;
  }

  /// Returns the position of the first element of the index with this key, or kNotFound.
  template <class KeyAt>
  std::uint32_t Find(std::size_t key, KeyAt keyAt) const {
    if (slots == nullptr) return kNotFound;
    return slots[FindSlot(key, keyAt)];
  }

  /// Adds the element at position GetCount() to the index.
  template <class KeyAt>
  void Add(KeyAt keyAt) {
    if (2 * (count + std::size_t{1}) > std::size_t{mask} + 1) Grow(keyAt);
    Place(count, keyAt);
    ++count;
  }

 private:
  template <class KeyAt>
  std::size_t FindSlot(std::size_t key, KeyAt keyAt) const {
    std::size_t slot = HashKey(key) & mask;
    while (slots[slot] != kNotFound && keyAt(slots[slot]) != key) slot = (slot + 1) & mask;
    return slot;
  }

  template <class KeyAt>
  void Place(std::uint32_t position, KeyAt keyAt) {
    std::uint32_t& slot = slots[FindSlot(keyAt(position), keyAt)];
    if (slot == kNotFound) slot = position;
  }

  template <class KeyAt>
  void Grow(KeyAt keyAt) {
    const std::size_t wanted = mask == 0 ? 128 : 2 * (std::size_t{mask} + 1);
    std::unique_ptr<std::uint32_t[]> larger(new std::uint32_t[wanted]);
    for (std::size_t i = 0; i < wanted; ++i) larger[i] = kNotFound;
    slots = std::move(larger);
    mask = static_cast<std::uint32_t>(wanted - 1);
    for (std::uint32_t i = 0; i < count; ++i) Place(i, keyAt);
  }

  /// Maps keys to slots. The mapping differs in each process, so that no file can be written to
  /// cause collisions on purpose.
  KELIFC_API static std::size_t HashKey(std::size_t key);

  std::unique_ptr<std::uint32_t[]> slots;
  std::uint32_t mask = 0;  // number of slots, a power of two, minus 1
  std::uint32_t count = 0;
};

}  // namespace KelIFC::detail

#endif  // KELIFC_CORE_DETAIL_POSITION_INDEX_H_
