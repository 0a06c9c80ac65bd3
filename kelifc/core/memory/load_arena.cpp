#include "kelifc/core/memory/load_arena.h"

#include <algorithm>
#include <atomic>
#include <new>

#include "kelifc/platform/huge_pages.h"

namespace KelIFC {

/// The header of a chunk, with the count of its blocks. While the chunk is open, the count includes
/// kOpen blocks that do not exist, so that the chunk is not freed when its last block is.
struct LoadArena::Chunk {
  std::atomic<std::uint32_t> blocks;
  bool isHuge;  ///< allocated by AllocateHugePages

  static Chunk* Make(std::size_t size) {
    const bool isHuge = size >= kHugePageSize;
    void* const memory = isHuge ? AllocateHugePages(size) : ::operator new(size);
    return ::new (memory) Chunk{{kOpen}, isHuge};
  }

  void Drop(std::uint32_t count) noexcept {
    if (blocks.fetch_sub(count, std::memory_order_acq_rel) != count) return;
    if (isHuge) {
      FreeHugePages(this);
    } else {
      ::operator delete(this);
    }
  }

  static constexpr std::uint32_t kOpen = 0x80000000;
};

namespace {

// The first chunk is small for the sake of small models. The largest one is a huge page.
constexpr std::size_t kFirstChunk = std::size_t{16} * 1024;
constexpr std::size_t kLargestChunk = kHugePageSize;

constexpr std::size_t kAlignment = __STDCPP_DEFAULT_NEW_ALIGNMENT__;
constexpr std::size_t kMark = sizeof(void*);  // before a block: its chunk, or null
static_assert(kAlignment % kMark == 0);

constexpr std::size_t RoundUp(std::size_t size) {
  return (size + kAlignment - 1) / kAlignment * kAlignment;
}

thread_local LoadArena* current = nullptr;

void*& MarkOf(void* block) { return static_cast<void**>(block)[-1]; }

void* AllocateAlone(std::size_t size) {
  void* const block = static_cast<char*>(::operator new(kAlignment + size)) + kAlignment;
  MarkOf(block) = nullptr;
  return block;
}

}  // namespace

void* detail::AllocateBlock(std::size_t size) {
  LoadArena* const arena = current;
  if (arena == nullptr) return AllocateAlone(size);
  if (size <= LoadArena::kLargestBlock) return arena->Carve(size);
  arena->bytes += size;
  return AllocateAlone(size);
}

void detail::FreeBlock(void* block) noexcept {
  if (block == nullptr) return;
  if (auto* chunk = static_cast<LoadArena::Chunk*>(MarkOf(block))) {
    chunk->Drop(1);
  } else {
    ::operator delete(static_cast<char*>(block) - kAlignment);
  }
}

LoadArena::LoadArena() : outer(current), nextSize(kFirstChunk) { current = this; }

LoadArena::~LoadArena() {
  CloseChunk();
  current = outer;
}

// The cursor is the position of the next mark; the block after the mark is aligned.
void* LoadArena::Carve(std::size_t size) {
  const std::size_t taken = RoundUp(kMark + size);
  if (static_cast<std::size_t>(end - cursor) < taken) OpenChunk();
  void* const block = cursor + kMark;
  MarkOf(block) = chunk;
  cursor += taken;
  ++carved;
  return block;
}

void LoadArena::OpenChunk() {
  CloseChunk();
  chunk = Chunk::Make(nextSize);
  char* const memory = reinterpret_cast<char*>(chunk);
  cursor = memory + RoundUp(sizeof(Chunk) + kMark) - kMark;
  end = memory + nextSize;
  bytes += nextSize;
  nextSize = std::min(2 * nextSize, kLargestChunk);
}

void LoadArena::CloseChunk() noexcept {
  if (chunk != nullptr) chunk->Drop(Chunk::kOpen - carved);
  chunk = nullptr;
  cursor = end = nullptr;
  carved = 0;
}

}  // namespace KelIFC
