#include "kelifc/server/detail/instance_index.h"

#include <algorithm>
#include <iterator>

#include "kelifc/core/detail/prefetch.h"
#include "kelifc/server/detail/number_index.h"

namespace KelIFC::detail {
namespace {

constexpr unsigned kSmallestTableBits = 6;

// How many insertions in advance the build prefetches the memory of the table.
constexpr std::size_t kPrefetchDistance = 16;

}  // namespace

void InstanceIndex::Build(Slots slots, std::size_t count, const NumberIndex& numbers) {
  Clear();
  numberOf.resize(count, 0);
  for (std::uint64_t number = numbers.GetNext(0); number != 0; number = numbers.GetNext(number)) {
    numberOf[numbers.Find(number)] = number;
  }
  Rehash(slots, count);
  built = true;
}

void InstanceIndex::Clear() { *this = InstanceIndex(); }

void InstanceIndex::Rehash(Slots slots, std::size_t slotCount) {
  unsigned bits = kSmallestTableBits;
  while ((std::size_t{1} << bits) < 2 * slotCount) ++bits;
  table.assign(std::size_t{1} << bits, kNone);
  shift = 64 - bits;
  used = 0;
  repeats.clear();
  for (std::size_t position = 0; position < slotCount; ++position) {
    if (position + kPrefetchDistance < slotCount) {
      Prefetch(&table[HomeOf(slots[position + kPrefetchDistance])]);
    }
    Insert(slots, static_cast<std::uint32_t>(position));
  }
}

std::size_t InstanceIndex::HomeOf(const IfcUnknown* instance) const {
  // Multiplying by 2^64 over the golden ratio spreads addresses evenly over the upper bits.
  const auto address = static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(instance));
  return static_cast<std::size_t>((address * 0x9E3779B97F4A7C15ULL) >> shift);
}

std::size_t InstanceIndex::FindSlot(Slots slots, const IfcUnknown* instance) const {
  const std::size_t mask = table.size() - 1;
  std::size_t slot = HomeOf(instance);
  while (table[slot] != kNone && slots[table[slot]] != instance) slot = (slot + 1) & mask;
  return slot;
}

void InstanceIndex::Insert(Slots slots, std::uint32_t position) {
  const IfcUnknown* instance = slots[position];
  if (instance == nullptr) {
    firstNull = std::min(firstNull, position);
    return;
  }
  std::uint32_t& entry = table[FindSlot(slots, instance)];
  if (entry != kNone) {
    repeats.emplace(instance, position);
    return;
  }
  entry = position;
  ++used;
}

std::uint32_t InstanceIndex::FindPosition(Slots slots, const IfcUnknown* instance) const {
  return instance == nullptr ? firstNull : table[FindSlot(slots, instance)];
}

void InstanceIndex::Append(Slots slots, std::uint64_t number) {
  const auto position = static_cast<std::uint32_t>(numberOf.size());
  numberOf.push_back(number);
  if (2 * (used + 1) > table.size()) {
    Rehash(slots, numberOf.size());
  } else {
    Insert(slots, position);
  }
}

std::vector<std::uint32_t> InstanceIndex::Remove(Slots slots, const IfcUnknown* instance) {
  std::vector<std::uint32_t> positions;
  if (instance == nullptr) return positions;
  const std::size_t slot = FindSlot(slots, instance);
  if (table[slot] == kNone) return positions;
  const auto [from, to] = repeats.equal_range(instance);
  positions.reserve(1 + static_cast<std::size_t>(std::distance(from, to)));
  positions.push_back(table[slot]);
  firstNull = std::min(firstNull, table[slot]);
  for (auto later = from; later != to; ++later) positions.push_back(later->second);
  repeats.erase(from, to);
  CloseGap(slots, slot);
  --used;
  return positions;
}

// Moves later entries of the same run into the free slot, so that a search can stop at a free slot.
void InstanceIndex::CloseGap(Slots slots, std::size_t gap) {
  const std::size_t mask = table.size() - 1;
  for (std::size_t next = (gap + 1) & mask; table[next] != kNone; next = (next + 1) & mask) {
    const std::size_t home = HomeOf(slots[table[next]]);
    if (((next - home) & mask) < ((next - gap) & mask)) continue;
    table[gap] = table[next];
    gap = next;
  }
  table[gap] = kNone;
}

}  // namespace KelIFC::detail
