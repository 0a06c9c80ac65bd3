#include "kelifc/platform/huge_pages.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <vector>

namespace KelIFC {
namespace {

TEST(HugePages, CanBeWrittenToTheirEnd) {
  constexpr std::size_t kSize = 2 * kHugePageSize;
  auto* const memory = static_cast<unsigned char*>(AllocatePages(kSize));
  AdviseHugePages(memory, kSize);
  std::memset(memory, 0xA5, kSize);
  EXPECT_EQ(memory[0], 0xA5);
  EXPECT_EQ(memory[kSize - 1], 0xA5);
  FreePages(memory, kSize);
}

TEST(HugePages, BeginAtAMultipleOfTheirSize) {
  void* const memory = AllocatePages(kHugePageSize);
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(memory) % kHugePageSize, 0u);
  FreePages(memory, kHugePageSize);
}

TEST(HugePages, FreeNothingForNull) { FreePages(nullptr, kHugePageSize); }

TEST(HugePages, LeaveTheContentOfAnyMemoryAsItIs) {
  std::vector<unsigned char> memory(5 * kHugePageSize + 12345, 0x5A);
  AdviseHugePages(memory.data(), memory.size());
  AdviseHugePages(memory.data() + 1, 100);
  AdviseHugePages(nullptr, 0);
  for (const unsigned char byte : memory) ASSERT_EQ(byte, 0x5A);
}

}  // namespace
}  // namespace KelIFC
