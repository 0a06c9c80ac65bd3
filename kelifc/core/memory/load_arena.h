#ifndef KELIFC_CORE_MEMORY_LOAD_ARENA_H_
#define KELIFC_CORE_MEMORY_LOAD_ARENA_H_

#include <array>
#include <cstddef>
#include <cstdint>

#include "kelifc/core/detail/block_memory.h"

namespace KelIFC {

/// The allocator of a load, which makes millions of blocks that are freed together. While an arena
/// exists, AllocateBlock cuts the blocks of its thread from large chunks, in the order of the
/// calls. Without an arena, each block is a heap allocation of its own. ChunkMap knows the chunks,
/// so FreeBlock can tell the blocks of arenas from other blocks.
///
/// A chunk is freed when all of its blocks have been freed; the memory of a single block is not
/// used again before that. Arenas can be nested.
class LoadArena {
 public:
  /// Larger blocks are always heap allocations of their own. They can be far from their instances,
  /// and a reference takes more memory if it is far from its owner.
  static constexpr std::size_t kLargestBlock = std::size_t{64} * 1024;

  LoadArena();
  ~LoadArena();
  LoadArena(const LoadArena&) = delete;
  LoadArena& operator=(const LoadArena&) = delete;

  /// Returns the number of bytes that were allocated for blocks so far. Freed blocks count, too.
  std::uint64_t GetBytes() const { return bytes; }

 private:
  friend void* detail::AllocateBlock(std::size_t size, std::size_t alignment);
  friend void detail::FreeBlock(void* block) noexcept;
  friend class BulkFree;
  struct Chunk;

  void* Carve(std::size_t size, std::size_t alignment);
  void Extend();
  void OpenChunk();
  void CloseChunk() noexcept;

  LoadArena* outer;
  Chunk* chunk = nullptr;    // blocks are cut from this one
  std::size_t cursor = 0;    // in the chunk: where the next block can begin,
  std::size_t end = 0;       // and the end of the part that is used so far
  std::uint32_t carved = 0;  // blocks that were cut from the chunk
  std::size_t nextPart;
  std::uint64_t bytes = 0;
};

/// Makes it faster to free many blocks. While the object exists, FreeBlock counts the blocks of its
/// thread, and a chunk receives the count of many blocks at once. So the memory of a chunk can be
/// freed later, but not later than this object. The objects can be nested.
class BulkFree {
 public:
  BulkFree();
  ~BulkFree();
  BulkFree(const BulkFree&) = delete;
  BulkFree& operator=(const BulkFree&) = delete;

 private:
  friend void detail::FreeBlock(void* block) noexcept;

  // Blocks that were freed and that their chunk still counts. So the chunk exists.
  struct Pending {
    LoadArena::Chunk* chunk = nullptr;
    std::uint32_t blocks = 0;
  };

  bool Count(void* block) noexcept;
  static void Settle(Pending& pending) noexcept;

  // An instance and its texts are often in different chunks.
  static constexpr std::size_t kChunks = 8;

  BulkFree* outer;
  std::array<Pending, kChunks> chunks;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_MEMORY_LOAD_ARENA_H_
