#ifndef KELIFC_CORE_DETAIL_POSITION_INDEX_H_
#define KELIFC_CORE_DETAIL_POSITION_INDEX_H_

#include <cstddef>
#include <cstdint>
#include <memory>

#include "kelifc/platform/export.h"

namespace KelIFC::detail {

/// Finds the first element with a key in a long set. It holds positions alone, eight bytes or fewer
/// per element in the long run; the keys stay in the elements and are asked for through `keyAt`, a
/// function from a position, counted from 0, to a key. It knows the first GetCount() elements: the
/// set that owns it drops it when one of them may have changed.
class PositionIndex {
 public:
  static constexpr std::uint32_t kNotFound = ~std::uint32_t{0};

  std::size_t GetCount() const { return count; }
  void Drop() {
    slots.reset();
    mask = count = 0;
  }

  /// The position of the first element with this key among those that are known, or kNotFound.
  template <class KeyAt>
  std::uint32_t Find(std::size_t key, KeyAt keyAt) const {
    if (slots == nullptr) return kNotFound;
    return slots[FindSlot(key, keyAt)];
  }

  /// Takes notice of the element at position GetCount().
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

  /// Spreads keys over the slots, differently in each process, so that no file can be made to
  /// crowd them.
  KELIFC_API static std::size_t HashKey(std::size_t key);

  std::unique_ptr<std::uint32_t[]> slots;
  std::uint32_t mask = 0;  // the number of slots, a power of two, less 1
  std::uint32_t count = 0;
};

}  // namespace KelIFC::detail

#endif  // KELIFC_CORE_DETAIL_POSITION_INDEX_H_
