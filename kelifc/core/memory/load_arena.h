#ifndef KELIFC_CORE_MEMORY_LOAD_ARENA_H_
#define KELIFC_CORE_MEMORY_LOAD_ARENA_H_

#include <cstddef>
#include <cstdint>

#include "kelifc/core/detail/block_memory.h"

namespace KelIFC {

/// A load makes millions of blocks and they go together. While an arena lives, AllocateBlock carves
/// those of its thread from large chunks, one behind the other in the order of the file; at any
/// other time each stands alone on the heap. A word ahead of each block tells which.
///
/// A chunk goes back to the heap when all of its blocks are gone; the room of a single block is not
/// used again before that. Arenas may be nested.
class LoadArena {
 public:
  /// Blocks of more bytes than this stand alone in any case.
  static constexpr std::size_t kLargestBlock = 2048;

  LoadArena();
  ~LoadArena();
  LoadArena(const LoadArena&) = delete;
  LoadArena& operator=(const LoadArena&) = delete;

  /// The bytes that were taken from the heap for the blocks so far. Blocks that were given back
  /// count, too.
  std::uint64_t GetBytes() const { return bytes; }

 private:
  friend void* detail::AllocateBlock(std::size_t size);
  friend void detail::FreeBlock(void* block) noexcept;
  struct Chunk;

  void* Carve(std::size_t size);
  void OpenChunk();
  void CloseChunk() noexcept;

  LoadArena* outer;
  Chunk* chunk = nullptr;  // the one that is carved from
  char* cursor = nullptr;
  char* end = nullptr;
  std::uint32_t carved = 0;  // blocks of the chunk
  std::size_t nextSize;
  std::uint64_t bytes = 0;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_MEMORY_LOAD_ARENA_H_
