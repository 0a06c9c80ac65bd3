#include "kelifc/platform/com_bstr.h"

#include <gtest/gtest.h>

namespace KelIFC {
namespace {

TEST(Bstr, OwnsNothingAtFirst) {
  const Bstr string;
  EXPECT_EQ(string.Get(), nullptr);
  EXPECT_TRUE(string.Text().empty());
}

TEST(Bstr, CopiesAText) {
  const Bstr string(std::wstring_view(L"a\0b", 3));
  EXPECT_EQ(SysStringLen(string.Get()), 3U);
  EXPECT_EQ(string.Text(), std::wstring_view(L"a\0b", 3));
}

TEST(Bstr, FreesTheOldStringBeforeItTakesANewOne) {
  Bstr string(L"old");
  *string.Put() = SysAllocString(L"new");
  EXPECT_EQ(string.Text(), L"new");
  string.Put();
  EXPECT_EQ(string.Get(), nullptr);
}

}  // namespace
}  // namespace KelIFC
