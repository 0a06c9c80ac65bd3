#include "kelifc/core/memory/load_arena.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <thread>
#include <utility>
#include <vector>

#include "kelifc/core/list_of_members.h"
#include "kelifc/core/memory/chunk_map.h"
#include "kelifc/core/other.h"

namespace KelIFC {
namespace {

using detail::AllocateBlock;
using detail::FreeBlock;

// A type that needs the largest alignment has a size that is a multiple of it.
bool IsAligned(const void* block, std::size_t size) {
  constexpr std::size_t kLargest = __STDCPP_DEFAULT_NEW_ALIGNMENT__;
  const std::size_t needed = size % kLargest == 0 ? kLargest : alignof(double);
  return reinterpret_cast<std::uintptr_t>(block) % needed == 0;
}

std::ptrdiff_t Distance(const void* from, const void* to) {
  return static_cast<const char*>(to) - static_cast<const char*>(from);
}

/// Blocks of many sizes, each filled with a byte of its own.
class Blocks {
 public:
  Blocks() {
    for (std::size_t i = 0; i < 5000; ++i) {
      const std::size_t size = i * 7919 % 3000;
      void* const block = AllocateBlock(size);
      std::memset(block, static_cast<int>(i % 251), size);
      blocks.push_back({static_cast<unsigned char*>(block), size});
    }
  }
  ~Blocks() {
    for (const auto& [block, size] : blocks) FreeBlock(block);
  }
  Blocks(const Blocks&) = delete;
  Blocks& operator=(const Blocks&) = delete;

  void ExpectWhole() const {
    for (std::size_t i = 0; i < blocks.size(); ++i) {
      const auto& [block, size] = blocks[i];
      ASSERT_TRUE(IsAligned(block, size));
      ASSERT_EQ(std::count(block, block + size, i % 251), static_cast<std::ptrdiff_t>(size));
    }
  }

 private:
  std::vector<std::pair<unsigned char*, std::size_t>> blocks;
};

TEST(BlockMemory, HoldsBlocksOfAnySizeApart) { Blocks().ExpectWhole(); }

TEST(BlockMemory, IgnoresANullBlock) { FreeBlock(nullptr); }

TEST(LoadArena, HoldsBlocksOfAnySizeApart) {
  const LoadArena arena;
  Blocks().ExpectWhole();
}

TEST(LoadArena, PlacesBlocksOneAfterTheOther) {
  const LoadArena arena;
  void* const first = AllocateBlock(40);
  void* const second = AllocateBlock(8);
  void* const third = AllocateBlock(1);
  EXPECT_EQ(Distance(first, second), 40);
  EXPECT_EQ(Distance(second, third), 8);
  for (void* block : {first, second, third}) FreeBlock(block);
}

TEST(LoadArena, LeavesNoGapsBetweenBlocksWithoutAlignment) {
  const LoadArena arena;
  void* const first = AllocateBlock(5, 1);
  void* const second = AllocateBlock(16, 1);
  void* const third = AllocateBlock(8, alignof(double));
  EXPECT_EQ(Distance(first, second), 5);
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(third) % alignof(double), 0U);
  EXPECT_LT(Distance(second, third), 24);
  for (void* block : {first, second, third}) FreeBlock(block);
}

TEST(LoadArena, KeepsBlocksThatOutliveIt) {
  std::unique_ptr<Blocks> blocks;
  {
    const LoadArena arena;
    blocks = std::make_unique<Blocks>();
  }
  blocks->ExpectWhole();
}

TEST(LoadArena, HoldsMoreThanTheLargestChunk) {
  constexpr std::size_t kSize = 2000;
  constexpr std::size_t kCount = 4000;  // 8 MB
  std::vector<unsigned char*> blocks;
  {
    const LoadArena arena;
    for (std::size_t i = 0; i < kCount; ++i) {
      blocks.push_back(static_cast<unsigned char*>(AllocateBlock(kSize)));
      std::memset(blocks.back(), static_cast<int>(i % 251), kSize);
    }
    EXPECT_GE(arena.GetBytes(), kSize * kCount);
  }
  for (std::size_t i = 0; i < kCount; ++i) {
    EXPECT_EQ(blocks[i][0], i % 251);
    EXPECT_EQ(blocks[i][kSize - 1], i % 251);
    FreeBlock(blocks[i]);
  }
}

TEST(LoadArena, CountsLittleMemoryForASmallModel) {
  const LoadArena arena;
  FreeBlock(AllocateBlock(100));
  EXPECT_LE(arena.GetBytes(), 64U * 1024);
}

TEST(LoadArena, RestoresTheOuterArenaWhenItEnds) {
  const LoadArena outer;
  void* const first = AllocateBlock(8);
  void* within = nullptr;
  {
    const LoadArena inner;
    within = AllocateBlock(8);
  }
  void* const second = AllocateBlock(8);
  EXPECT_EQ(Distance(first, second), 8);
  for (void* block : {first, within, second}) FreeBlock(block);
}

TEST(LoadArena, ServesOnlyItsThread) {
  const LoadArena arena;
  void* const first = AllocateBlock(8);
  std::thread([] { FreeBlock(AllocateBlock(8)); }).join();
  void* const second = AllocateBlock(8);
  EXPECT_EQ(Distance(first, second), 8);
  std::thread([&] {
    FreeBlock(first);
    FreeBlock(second);
  }).join();
}

TEST(LoadArena, HoldsInstancesAndTheirAggregates) {
  std::vector<std::unique_ptr<IfcUnknown>> instances;
  {
    const LoadArena arena;
    for (int i = 0; i < 1000; ++i) {
      instances.push_back(std::make_unique<IfcOther>());
      instances.back()->Parse("IFCTHING((#1,#2),'text',IFCLABEL('label'))");
    }
  }
  // Half of them grow and are destroyed while the others stay.
  for (std::size_t i = 0; i < instances.size(); i += 2) instances[i].reset();
  for (std::size_t i = 1; i < instances.size(); i += 2) {
    EXPECT_STREQ(instances[i]->GetStepName(), instances[1]->GetStepName());
  }
}

// The blocks fill several chunks.
std::vector<void*> AllocateMany() {
  constexpr std::size_t kCount = 40000;
  const LoadArena arena;
  std::vector<void*> blocks;
  for (std::size_t i = 0; i < kCount; ++i) blocks.push_back(AllocateBlock(100 + i % 1000));
  return blocks;
}

std::vector<const void*> ChunksOf(const std::vector<void*>& blocks) {
  std::vector<const void*> chunks;
  for (void* const block : blocks) chunks.push_back(ChunkMap::Find(block));
  return chunks;
}

// True if each of the blocks was in a chunk, and no chunk exists any more.
bool AreFreed(const std::vector<void*>& blocks, const std::vector<const void*>& chunks) {
  for (std::size_t i = 0; i < blocks.size(); ++i) {
    if (chunks[i] == nullptr || ChunkMap::Find(blocks[i]) != nullptr) return false;
  }
  return true;
}

TEST(BulkFree, FreesTheChunksOfAllBlocksWhenItEnds) {
  std::vector<void*> blocks = AllocateMany();
  const std::vector<const void*> chunks = ChunksOf(blocks);
  {
    const BulkFree scope;
    for (std::size_t i = 0; i < blocks.size(); ++i) FreeBlock(blocks[i * 7919 % blocks.size()]);
  }
  EXPECT_TRUE(AreFreed(blocks, chunks));
}

TEST(BulkFree, LeavesOtherBlocksAsTheyAre) {
  std::unique_ptr<Blocks> kept;
  std::vector<void*> freed;
  {
    const LoadArena arena;
    freed.push_back(AllocateBlock(8));
    kept = std::make_unique<Blocks>();
    freed.push_back(AllocateBlock(8));
  }
  {
    const BulkFree scope;
    for (void* const block : freed) FreeBlock(block);
    FreeBlock(AllocateBlock(8));
    FreeBlock(nullptr);
  }
  kept->ExpectWhole();
  EXPECT_NE(ChunkMap::Find(freed[0]), nullptr);
  kept.reset();
  EXPECT_EQ(ChunkMap::Find(freed[0]), nullptr);
}

TEST(BulkFree, CountsTheBlocksOfItsThreadOnly) {
  std::vector<void*> blocks = AllocateMany();
  const std::vector<const void*> chunks = ChunksOf(blocks);
  const std::size_t half = blocks.size() / 2;
  {
    const BulkFree outer;
    for (std::size_t i = 0; i < half; i += 2) FreeBlock(blocks[i]);
    std::thread([&] {
      const BulkFree scope;
      for (std::size_t i = half; i < blocks.size(); ++i) FreeBlock(blocks[i]);
    }).join();
    const BulkFree inner;
    for (std::size_t i = 1; i < half; i += 2) FreeBlock(blocks[i]);
  }
  EXPECT_TRUE(AreFreed(blocks, chunks));
}

}  // namespace
}  // namespace KelIFC
