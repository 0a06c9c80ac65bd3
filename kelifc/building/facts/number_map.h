#ifndef KELIFC_BUILDING_FACTS_NUMBER_MAP_H_
#define KELIFC_BUILDING_FACTS_NUMBER_MAP_H_

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace KelIFC::building {

/// A map from numbers of instances to values, for maps that only grow. Values stay where they are.
/// Numbers that follow each other are near each other in memory, as the instances of a product are
/// in most files. The operations are those of the standard maps; iterators are pointers to pairs.
template <class T>
class NumberMap {
 public:
  using Entry = std::pair<const std::size_t, T>;

  Entry* find(std::size_t number) {
    if (slots.empty()) return nullptr;
    const std::uint32_t place = slots[SlotOf(number)];
    return place == kFree ? nullptr : &At(place);
  }
  const Entry* find(std::size_t number) const { return const_cast<NumberMap*>(this)->find(number); }

  /// What find returns if there is no value.
  static constexpr Entry* end() { return nullptr; }

  std::size_t count(std::size_t number) const { return find(number) == nullptr ? 0 : 1; }

  /// Adds a value unless there is one. Returns the value of the number, and true if it is new.
  std::pair<Entry*, bool> try_emplace(std::size_t number, T value = T()) {
    if (2 * (size + 1) > slots.size()) Grow();
    std::uint32_t& place = slots[SlotOf(number)];
    if (place != kFree) return {&At(place), false};
    place = static_cast<std::uint32_t>(size++);
    if (place % kChunk == 0) chunks.emplace_back().reserve(kChunk);
    return {&chunks.back().emplace_back(number, std::move(value)), true};
  }

  T& operator[](std::size_t number) { return try_emplace(number).first->second; }

 private:
  static constexpr std::uint32_t kFree = 0xFFFFFFFF;
  static constexpr std::size_t kFirstSize = 64;
  static constexpr unsigned kNear = 4;  // 2^4 numbers in a row are next to each other
  static constexpr std::size_t kChunk = 256;

  Entry& At(std::uint32_t place) { return chunks[place / kChunk][place % kChunk]; }
  const Entry& At(std::uint32_t place) const { return chunks[place / kChunk][place % kChunk]; }

  // The slot of a number, or the free one where it belongs.
  std::size_t SlotOf(std::size_t number) const {
    const std::uint64_t block = (std::uint64_t{number} >> kNear) * 0x9E3779B97F4A7C15ULL;
    const std::size_t mask = slots.size() - 1;
    std::size_t slot = ((block >> 32) << kNear | (number & ((1U << kNear) - 1))) & mask;
    while (slots[slot] != kFree && At(slots[slot]).first != number) slot = (slot + 1) & mask;
    return slot;
  }

  void Grow() {
    slots.assign(slots.empty() ? kFirstSize : 2 * slots.size(), kFree);
    for (std::uint32_t place = 0; place < size; ++place) slots[SlotOf(At(place).first)] = place;
  }

  std::vector<std::vector<Entry>> chunks;  // each of kChunk entries, so that no entry ever moves
  std::size_t size = 0;                    // of all chunks
  std::vector<std::uint32_t> slots;        // places of entries; the size is a power of two
};

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_FACTS_NUMBER_MAP_H_
