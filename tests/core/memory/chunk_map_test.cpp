#include "kelifc/core/memory/chunk_map.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <thread>
#include <vector>

namespace KelIFC {
namespace {

/// A chunk in the map, as long as the object exists.
class AddedChunk {
 public:
  AddedChunk() : memory(static_cast<char*>(AllocatePages(ChunkMap::kChunkSize))) {
    EXPECT_TRUE(ChunkMap::Add(memory));
  }
  ~AddedChunk() {
    ChunkMap::Remove(memory);
    FreePages(memory, ChunkMap::kChunkSize);
  }
  AddedChunk(const AddedChunk&) = delete;
  AddedChunk& operator=(const AddedChunk&) = delete;

  char* Get() const { return memory; }

 private:
  char* memory;
};

TEST(ChunkMap, FindsTheChunkOfEachOfItsBytes) {
  const AddedChunk chunk;
  for (const std::size_t offset : {std::size_t{0}, std::size_t{1}, ChunkMap::kChunkSize - 1}) {
    EXPECT_EQ(ChunkMap::Find(chunk.Get() + offset), chunk.Get());
  }
}

TEST(ChunkMap, FindsNoChunkOutsideOfAllChunks) {
  int local = 0;
  EXPECT_EQ(ChunkMap::Find(&local), nullptr);
  EXPECT_EQ(ChunkMap::Find(nullptr), nullptr);
  EXPECT_EQ(ChunkMap::Find(reinterpret_cast<void*>(UINTPTR_MAX)), nullptr);
}

TEST(ChunkMap, RejectsAnAddressBeyondItsRange) {
  EXPECT_FALSE(ChunkMap::Add(reinterpret_cast<void*>(UINTPTR_MAX)));
}

TEST(ChunkMap, ForgetsAChunkThatWasRemoved) {
  void* const memory = AllocatePages(ChunkMap::kChunkSize);
  ASSERT_TRUE(ChunkMap::Add(memory));
  ChunkMap::Remove(memory);
  EXPECT_EQ(ChunkMap::Find(memory), nullptr);
  FreePages(memory, ChunkMap::kChunkSize);
}

TEST(ChunkMap, IsSharedByAllThreads) {
  const auto work = [] {
    for (int i = 0; i < 200; ++i) {
      const AddedChunk first;
      const AddedChunk second;
      ASSERT_EQ(ChunkMap::Find(first.Get() + i), first.Get());
      ASSERT_EQ(ChunkMap::Find(second.Get() + i), second.Get());
    }
  };
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) threads.emplace_back(work);
  for (std::thread& thread : threads) thread.join();
}

}  // namespace
}  // namespace KelIFC
