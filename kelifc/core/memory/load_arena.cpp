#include "kelifc/core/memory/load_arena.h"

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <new>

#include "kelifc/core/memory/chunk_map.h"
#include "kelifc/platform/huge_pages.h"

namespace KelIFC {

/// The header of a chunk, with the count of its blocks. While the chunk is open, the count includes
/// kOpen blocks that do not exist, so that the chunk is not freed when its last block is.
struct LoadArena::Chunk {
  std::atomic<std::uint32_t> blocks;

  static Chunk* Make(bool hasHugePage) {
    void* const memory = AllocatePages(ChunkMap::kChunkSize);
    if (!ChunkMap::Add(memory)) {
      FreePages(memory, ChunkMap::kChunkSize);
      throw std::bad_alloc();
    }
    if (hasHugePage) AdviseHugePages(memory, ChunkMap::kChunkSize);
    return ::new (memory) Chunk{{kOpen}};
  }

  void Drop(std::uint32_t count) noexcept {
    if (blocks.fetch_sub(count, std::memory_order_acq_rel) != count) return;
    ChunkMap::Remove(this);
    FreePages(this, ChunkMap::kChunkSize);
  }

  static constexpr std::uint32_t kOpen = 0x80000000;
};

namespace {

// The first part of the first chunk is small for the sake of small models: the system provides
// memory when it is accessed, and the arena counts it when it is needed.
constexpr std::size_t kFirstPart = std::size_t{16} * 1024;

constexpr std::size_t kLargestAlignment = __STDCPP_DEFAULT_NEW_ALIGNMENT__;

thread_local LoadArena* current = nullptr;
thread_local BulkFree* freeing = nullptr;

// `unit` is a power of two.
constexpr std::size_t RoundUp(std::size_t size, std::size_t unit) {
  return (size + unit - 1) & ~(unit - 1);
}

// The size of a type is a multiple of its alignment, so only these sizes need the largest one.
constexpr std::size_t AlignmentOf(std::size_t size) {
  return size % kLargestAlignment == 0 ? kLargestAlignment
                                       : std::min(sizeof(double), kLargestAlignment);
}

}  // namespace

// This is called for each block, so it is defined before the callers that shall contain its code.
inline void* LoadArena::Carve(std::size_t size, std::size_t alignment) {
  const std::size_t taken = std::max<std::size_t>(size, 1);
  std::size_t begin = RoundUp(cursor, alignment);
  while (begin + taken > end) {
    Extend();
    begin = RoundUp(cursor, alignment);
  }
  cursor = begin + taken;
  ++carved;
  return reinterpret_cast<char*>(chunk) + begin;
}

void* detail::AllocateBlock(std::size_t size) { return AllocateBlock(size, AlignmentOf(size)); }

void* detail::AllocateBlock(std::size_t size, std::size_t alignment) {
  LoadArena* const arena = current;
  if (arena == nullptr) return ::operator new(size);
  if (size <= LoadArena::kLargestBlock) return arena->Carve(size, alignment);
  arena->bytes += size;
  return ::operator new(size);
}

// Returns false if no chunk contains the block.
inline bool BulkFree::Count(void* block) noexcept {
  const auto address = reinterpret_cast<std::uintptr_t>(block);
  Pending& pending = chunks[address / ChunkMap::kChunkSize % kChunks];
  const std::uintptr_t begin = address - address % ChunkMap::kChunkSize;
  if (pending.chunk == nullptr || reinterpret_cast<std::uintptr_t>(pending.chunk) != begin) {
    void* const chunk = ChunkMap::Find(block);
    if (chunk == nullptr) return false;
    Settle(pending);
    pending.chunk = static_cast<LoadArena::Chunk*>(chunk);
  }
  ++pending.blocks;
  return true;
}

void detail::FreeBlock(void* block) noexcept {
  if (block == nullptr) return;
  if (freeing != nullptr && freeing->Count(block)) return;
  if (void* const chunk = ChunkMap::Find(block)) {
    static_cast<LoadArena::Chunk*>(chunk)->Drop(1);
  } else {
    ::operator delete(block);
  }
}

LoadArena::LoadArena() : outer(current), nextPart(kFirstPart) { current = this; }

LoadArena::~LoadArena() {
  CloseChunk();
  current = outer;
}

BulkFree::BulkFree() : outer(freeing) { freeing = this; }

BulkFree::~BulkFree() {
  for (Pending& pending : chunks) Settle(pending);
  freeing = outer;
}

void BulkFree::Settle(Pending& pending) noexcept {
  if (pending.chunk != nullptr) pending.chunk->Drop(pending.blocks);
  pending = {};
}

// Begins the next part of the chunk, or a new chunk.
void LoadArena::Extend() {
  if (end == (chunk == nullptr ? 0 : ChunkMap::kChunkSize)) OpenChunk();
  const std::size_t part = std::min(nextPart, ChunkMap::kChunkSize - end);
  end += part;
  bytes += part;
  nextPart = std::min(2 * nextPart, ChunkMap::kChunkSize);
}

void LoadArena::OpenChunk() {
  CloseChunk();
  chunk = Chunk::Make(nextPart != kFirstPart);
  cursor = sizeof(Chunk);
}

void LoadArena::CloseChunk() noexcept {
  if (chunk != nullptr) chunk->Drop(Chunk::kOpen - carved);
  chunk = nullptr;
  cursor = end = 0;
  carved = 0;
}

}  // namespace KelIFC
