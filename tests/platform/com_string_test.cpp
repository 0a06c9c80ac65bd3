#include "kelifc/platform/com_string.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(ComString, CopiesTheTextAndANullCharacter) {
  const BSTR string = SysAllocString(L"Stütze");
  EXPECT_EQ(SysStringLen(string), 6U);
  EXPECT_EQ(std::wstring(string), L"Stütze");
  SysFreeString(string);
}

TEST(ComString, CanContainNullCharacters) {
  const BSTR string = SysAllocStringLen(L"a\0b", 3);
  EXPECT_EQ(SysStringLen(string), 3U);
  EXPECT_EQ(std::wstring(string, 3), std::wstring(L"a\0b", 3));
  EXPECT_EQ(string[3], L'\0');
  SysFreeString(string);
}

TEST(ComString, HasRoomForALengthWithoutText) {
  const BSTR string = SysAllocStringLen(nullptr, 2);
  ASSERT_NE(string, nullptr);
  string[0] = L'x';
  string[1] = L'y';
  EXPECT_EQ(SysStringLen(string), 2U);
  EXPECT_EQ(std::wstring(string), L"xy");
  SysFreeString(string);
}

TEST(ComString, IsNullForNull) { EXPECT_EQ(SysAllocString(nullptr), nullptr); }

TEST(ComString, IsNotNullForTheEmptyText) {
  const BSTR string = SysAllocString(L"");
  ASSERT_NE(string, nullptr);
  EXPECT_EQ(SysStringLen(string), 0U);
  SysFreeString(string);
}

TEST(ComString, HasNoLengthIfItIsNull) {
  EXPECT_EQ(SysStringLen(nullptr), 0U);
  SysFreeString(nullptr);
}

TEST(ComString, IsNotCreatedIfItIsTooLong) {
  EXPECT_EQ(SysAllocStringLen(nullptr, 0xFFFFFFFF), nullptr);
}

}  // namespace
