#ifndef KELIFC_CORE_MEMORY_CHUNK_MAP_H_
#define KELIFC_CORE_MEMORY_CHUNK_MAP_H_

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>

#include "kelifc/platform/huge_pages.h"

namespace KelIFC {

/// The set of the chunks of all arenas. A chunk has the size and the alignment of a huge page, so
/// the upper bits of an address say which chunk could contain it, and the map has one bit for each
/// of these chunks. So a block needs no mark that says where it was allocated.
///
/// All threads share the map. A thread that asks about a block has received the block from the
/// thread that added its chunk, so the accesses need no order of their own.
class ChunkMap {
 public:
  static constexpr std::size_t kChunkSize = kHugePageSize;

  /// Adds the chunk that begins at an address. Returns false if the map has no bit for it: the
  /// address has more than 48 bits, or there is no memory.
  static bool Add(const void* chunk) noexcept;

  /// Removes a chunk that was added.
  static void Remove(const void* chunk) noexcept;

  /// Returns the begin of the chunk that contains an address, null if no chunk does.
  static void* Find(void* address) noexcept {
    const Place place = PlaceOf(address);
    if (place.leaf >= kLeaves) return nullptr;
    const Leaf* const leaf = leaves[place.leaf].load(std::memory_order_acquire);
    if (leaf == nullptr) return nullptr;
    const std::uint64_t word = (*leaf)[place.word].load(std::memory_order_relaxed);
    if ((word & place.bit) == 0) return nullptr;
    return static_cast<char*>(address) - reinterpret_cast<std::uintptr_t>(address) % kChunkSize;
  }

 private:
  // A leaf has the bits of 32 GiB of addresses. It is made with its first chunk and then stays.
  static constexpr std::size_t kChunksOfLeaf = std::size_t{1} << 14;
  static constexpr std::size_t kLeaves = std::size_t{1} << 13;
  static constexpr std::size_t kBitsOfWord = 64;
  using Leaf = std::array<std::atomic<std::uint64_t>, kChunksOfLeaf / kBitsOfWord>;

  struct Place {
    std::uint64_t leaf;
    std::size_t word;
    std::uint64_t bit;
  };
  static Place PlaceOf(const void* address) {
    const std::uint64_t chunk = reinterpret_cast<std::uintptr_t>(address) / kChunkSize;
    const auto within = static_cast<std::size_t>(chunk % kChunksOfLeaf);
    return {chunk / kChunksOfLeaf, within / kBitsOfWord,
            std::uint64_t{1} << (within % kBitsOfWord)};
  }
  static Leaf* GetLeaf(std::size_t index) noexcept;

  static std::array<std::atomic<Leaf*>, kLeaves> leaves;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_MEMORY_CHUNK_MAP_H_
