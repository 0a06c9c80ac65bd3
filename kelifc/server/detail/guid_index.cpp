#include "kelifc/server/detail/guid_index.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "kelifc/core/detail/prefetch.h"
#include "kelifc/platform/new_guid.h"
#include "kelifc/server/reserve_huge.h"

namespace KelIFC::detail {
namespace {

constexpr std::size_t kSmallestTable = 16;

}  // namespace

GuidIndex::GuidIndex(std::size_t count) {
  ReserveHuge(entries, count);
  std::size_t slotCount = kSmallestTable;
  while (slotCount < 2 * count) slotCount *= 2;
  Resize(slotCount);
}

void GuidIndex::Add(const _GUID& guid, std::uint32_t position) {
  if (2 * (entries.size() + 1) > table.size()) {
    Resize(std::max(kSmallestTable, 2 * table.size()));
  }
  std::uint32_t& slot = table[SlotOf(guid)];
  if (slot != kNone) return;
  entries.push_back({guid, position});
  slot = static_cast<std::uint32_t>(entries.size() - 1);
}

void GuidIndex::AddBatch(const Entry* begin, const Entry* end) {
  if (!table.empty()) {
    for (const Entry* entry = begin; entry != end; ++entry) Prefetch(&table[HomeOf(entry->guid)]);
    for (const Entry* entry = begin; entry != end; ++entry) {
      const std::uint32_t other = table[HomeOf(entry->guid)];
      if (other != kNone) Prefetch(&entries[other]);
    }
  }
  for (const Entry* entry = begin; entry != end; ++entry) Add(entry->guid, entry->position);
}

std::uint32_t GuidIndex::Find(const _GUID& guid) const {
  if (table.empty()) return kNone;
  const std::uint32_t entry = table[SlotOf(guid)];
  return entry == kNone ? kNone : entries[entry].position;
}

// Returns the slot where the search for an identifier begins.
std::size_t GuidIndex::HomeOf(const _GUID& guid) const {
  std::uint64_t halves[2];
  std::memcpy(halves, &guid, sizeof halves);
  const std::uint64_t hash =
      (halves[0] ^ halves[0] >> 32) * factors[0] + (halves[1] ^ halves[1] >> 32) * factors[1];
  return static_cast<std::size_t>(hash >> shift);
}

// Returns the slot of an identifier, or the free slot for it.
std::size_t GuidIndex::SlotOf(const _GUID& guid) const {
  std::size_t slot = HomeOf(guid);
  while (table[slot] != kNone && entries[table[slot]].guid != guid) {
    slot = (slot + 1) & (table.size() - 1);
  }
  return slot;
}

// `slotCount` is a power of two.
void GuidIndex::Resize(std::size_t slotCount) {
  if (table.empty()) {
    const _GUID random = NewGuid();
    std::memcpy(factors, &random, sizeof factors);
    for (std::uint64_t& factor : factors) factor |= 1;
  }
  std::vector<std::uint32_t> made;
  ReserveHuge(made, slotCount);
  made.resize(slotCount, kNone);
  table = std::move(made);
  shift = 64;
  for (std::size_t size = slotCount; size > 1; size /= 2) --shift;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    table[SlotOf(entries[i].guid)] = static_cast<std::uint32_t>(i);
  }
}

}  // namespace KelIFC::detail
