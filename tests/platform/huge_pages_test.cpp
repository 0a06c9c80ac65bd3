#include "kelifc/platform/huge_pages.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>

namespace KelIFC {
namespace {

TEST(HugePages, CanBeWrittenToTheirEnd) {
  constexpr std::size_t kSize = 2 * kHugePageSize;
  auto* const memory = static_cast<unsigned char*>(AllocateHugePages(kSize));
  std::memset(memory, 0xA5, kSize);
  EXPECT_EQ(memory[0], 0xA5);
  EXPECT_EQ(memory[kSize - 1], 0xA5);
  FreeHugePages(memory);
}

TEST(HugePages, AreAlignedForAnyObject) {
  void* const memory = AllocateHugePages(kHugePageSize);
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(memory) % __STDCPP_DEFAULT_NEW_ALIGNMENT__, 0u);
#ifdef __linux__
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(memory) % kHugePageSize, 0u);
#endif
  FreeHugePages(memory);
}

TEST(HugePages, FreeNothingForNull) { FreeHugePages(nullptr); }

}  // namespace
}  // namespace KelIFC
