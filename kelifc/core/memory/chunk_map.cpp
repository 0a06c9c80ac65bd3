#include "kelifc/core/memory/chunk_map.h"

#include <memory>
#include <new>

namespace KelIFC {

constinit std::array<std::atomic<ChunkMap::Leaf*>, ChunkMap::kLeaves> ChunkMap::leaves = {};

// Two threads can make the same leaf. The first one wins.
ChunkMap::Leaf* ChunkMap::GetLeaf(std::size_t index) noexcept {
  Leaf* found = leaves[index].load(std::memory_order_acquire);
  if (found != nullptr) return found;
  std::unique_ptr<Leaf> made(new (std::nothrow) Leaf());
  if (made == nullptr) return nullptr;
  if (leaves[index].compare_exchange_strong(found, made.get(), std::memory_order_acq_rel)) {
    return made.release();
  }
  return found;
}

bool ChunkMap::Add(const void* chunk) noexcept {
  const Place place = PlaceOf(chunk);
  if (place.leaf >= kLeaves) return false;
  Leaf* const leaf = GetLeaf(static_cast<std::size_t>(place.leaf));
  if (leaf == nullptr) return false;
  (*leaf)[place.word].fetch_or(place.bit, std::memory_order_relaxed);
  return true;
}

void ChunkMap::Remove(const void* chunk) noexcept {
  const Place place = PlaceOf(chunk);
  Leaf* const leaf = leaves[static_cast<std::size_t>(place.leaf)].load(std::memory_order_acquire);
  (*leaf)[place.word].fetch_and(~place.bit, std::memory_order_relaxed);
}

}  // namespace KelIFC
