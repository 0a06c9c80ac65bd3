#include "kelifc/core/lists/parenthesised.h"

#include <gtest/gtest.h>

#include <string>

namespace KelIFC::detail {
namespace {

TEST(Parenthesised, FindsTheCounterpartOfTheFirstParenthesis) {
  const std::string text = "x (a(b)(c(d))e),f),g";
  Parenthesised inner;
  ASSERT_TRUE(FindParenthesised(text.c_str(), inner));
  EXPECT_EQ(std::string(inner.begin, inner.end), "a(b)(c(d))e");
  EXPECT_TRUE(inner.isNested);
  EXPECT_STREQ(inner.BehindNextComma(), "f),g");
}

TEST(Parenthesised, DistinguishesAFlatTextFromANestedOne) {
  Parenthesised inner;
  ASSERT_TRUE(FindParenthesised("(a,b,c)", inner));
  EXPECT_FALSE(inner.isNested);
  EXPECT_EQ(inner.CountCommas(inner.begin), 2U);
  EXPECT_EQ(inner.CountCommas(inner.begin + 2), 1U);
  EXPECT_EQ(inner.BehindNextComma(), nullptr);
  ASSERT_TRUE(FindParenthesised("(),5", inner));
  EXPECT_EQ(inner.begin, inner.end);
  EXPECT_STREQ(inner.BehindNextComma(), "5");
}

TEST(Parenthesised, EndsAtTheEndOfTheTextIfNothingMatches) {
  for (const std::string text : {"(a,b", "(a(b)", "((", "("}) {
    Parenthesised inner;
    ASSERT_TRUE(FindParenthesised(text.c_str(), inner));
    EXPECT_EQ(std::string(inner.begin, inner.end), text.substr(1));
    EXPECT_EQ(inner.BehindNextComma(), nullptr);
  }
}

TEST(Parenthesised, NeedsAParenthesis) {
  Parenthesised inner;
  EXPECT_FALSE(FindParenthesised("a),b", inner));
  EXPECT_FALSE(FindParenthesised("", inner));
}

TEST(Parenthesised, SearchesACommaUpToTheEndOnly) {
  const char* text = "a,b,c";
  EXPECT_EQ(BehindCommaBefore(text, text + 5), text + 2);
  EXPECT_EQ(BehindCommaBefore(text + 1, text + 5), text + 2);
  EXPECT_EQ(BehindCommaBefore(text + 2, text + 3), nullptr);
  EXPECT_EQ(BehindCommaBefore(text + 3, text + 3), nullptr);
}

}  // namespace
}  // namespace KelIFC::detail
