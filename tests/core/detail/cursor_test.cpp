#include "kelifc/core/detail/cursor.h"

#include <gtest/gtest.h>

namespace KelIFC::detail {
namespace {

TEST(Cursor, KnowsTheBlanksOfTheClassicLocale) {
  for (int c = 0; c < 256; ++c) {
    const bool expected = c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r';
    EXPECT_EQ(IsBlank(static_cast<char>(c)), expected) << c;
  }
}

TEST(Cursor, SkipsBlanksOnly) {
  EXPECT_STREQ(SkipBlanks(" \t\n\v\f\rx y"), "x y");
  EXPECT_STREQ(SkipBlanks("   "), "");
}

TEST(Cursor, FindsTheFirstCommaInAnyText) {
  EXPECT_STREQ(BehindNextComma(",a"), "a");
  EXPECT_STREQ(BehindNextComma("(')',x),y"), "x),y");
  EXPECT_STREQ(BehindNextComma("a,"), "");
  EXPECT_EQ(BehindNextComma("a)"), nullptr);
  EXPECT_EQ(BehindNextComma(nullptr), nullptr);
}

TEST(Cursor, SkipsAnOmittedValueAndItsComma) {
  const char* next = nullptr;
  EXPECT_TRUE(SkipOmittedValue(next, "  $ ,5"));
  EXPECT_STREQ(next, "5");
  EXPECT_TRUE(SkipOmittedValue(next, "*,5"));
  EXPECT_STREQ(next, "5");
}

TEST(Cursor, EndsAfterAnOmittedValueThatIsTheLast) {
  const char* next = "";
  EXPECT_TRUE(SkipOmittedValue(next, "$)"));
  EXPECT_EQ(next, nullptr);
}

TEST(Cursor, DoesNotMoveAtAValue) {
  const char* text = "  5,6";
  const char* next = nullptr;
  EXPECT_FALSE(SkipOmittedValue(next, text));
  EXPECT_EQ(next, text);
  EXPECT_FALSE(SkipOmittedValue(next, nullptr));
  EXPECT_EQ(next, nullptr);
}

}  // namespace
}  // namespace KelIFC::detail
