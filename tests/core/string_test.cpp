#include "kelifc/core/string.h"

#include <gtest/gtest.h>

#include "tests/core/text.h"

namespace KelIFC {
namespace {

TEST(String, IsUnsetAndEmptyAtFirst) {
  const STRING text;
  EXPECT_FALSE(text.GetExists());
  EXPECT_EQ(text, "");
  EXPECT_EQ(Text(text), "$");
}

TEST(String, ExistsWhenMadeFromText) {
  const STRING text(std::string("abc"));
  EXPECT_TRUE(text.GetExists());
  EXPECT_EQ(Text(text), "'abc'");
  EXPECT_EQ(Text(STRING(std::string())), "''");
}

TEST(String, CanBeAssignedAText) {
  STRING text;
  text = "abc";
  EXPECT_TRUE(text.GetExists());
  EXPECT_EQ(text, "abc");
}

TEST(String, IsUnsetByTheAssignmentOfNull) {
  STRING text(std::string("abc"));
  text = static_cast<const char*>(nullptr);
  EXPECT_FALSE(text.GetExists());
  EXPECT_EQ(text, "");
}

TEST(String, CopiesTextAndMark) {
  const STRING set(std::string("abc"));
  STRING copy(set);
  EXPECT_EQ(Text(copy), "'abc'");
  copy = STRING();
  EXPECT_EQ(Text(copy), "$");
}

TEST(String, ReadsUpToTheCommaAfterTheClosingQuote) {
  STRING text;
  EXPECT_EQ(RestOf(text, " 'a,b' , 'c'"), " 'c'");
  EXPECT_EQ(text, "a,b");
  EXPECT_EQ(RestOf(text, "'a')"), "(null)");
  EXPECT_TRUE(text.GetExists());
}

TEST(String, ReadsAnEscapedQuoteAndWritesItSo) {
  STRING text;
  text.Parse("'it\\'s'");
  EXPECT_EQ(text, "it's");
  EXPECT_EQ(Text(text), "'it\\'s'");
}

TEST(String, DropsTheTextAfterADoubledQuote) {
  STRING text;
  EXPECT_EQ(RestOf(text, "'a''b',5"), "5");
  EXPECT_EQ(text, "a");
}

TEST(String, CarriesAByteAboveAscii) {
  STRING text(std::string("\xE4"));
  const std::string written = Text(text);
  EXPECT_EQ(written, "'\\X\\E4'");
  text.Parse(written.c_str());
  EXPECT_EQ(text, "\xE4");
}

TEST(String, DoesNotEndAtTheQuoteAfterAnUnknownDirective) {
  STRING text;
  EXPECT_EQ(RestOf(text, "'caf\\X2\\00E9\\X0\\'"), "'caf\\X2\\00E9\\X0\\'");
  EXPECT_FALSE(text.GetExists());
  EXPECT_EQ(text, "caf2\\00E90'");
}

TEST(String, BecomesUnsetByOmittedValues) {
  STRING text(std::string("abc"));
  EXPECT_EQ(RestOf(text, " $ ,5"), "5");
  EXPECT_EQ(Text(text), "$");
  text = "abc";
  EXPECT_EQ(RestOf(text, "*"), "(null)");
  EXPECT_EQ(Text(text), "$");
  text = "abc";
  EXPECT_EQ(text.Parse(nullptr), nullptr);
  EXPECT_EQ(Text(text), "$");
}

TEST(String, ReadsAnEmptyText) {
  STRING text;
  EXPECT_EQ(RestOf(text, "'',5"), "5");
  EXPECT_EQ(Text(text), "''");
}

TEST(String, StaysUnsetWithoutAClosingQuote) {
  STRING text;
  EXPECT_EQ(RestOf(text, " 'abc,5"), " 'abc,5");
  EXPECT_FALSE(text.GetExists());
  EXPECT_EQ(text, "abc,5");
  EXPECT_EQ(RestOf(text, "abc,5"), "abc,5");
  EXPECT_EQ(text, "");
}

}  // namespace
}  // namespace KelIFC
