#include "tools/schemac/line_reader.h"

#include <gtest/gtest.h>

namespace schemac {
namespace {

TEST(ReadLines, KeepsPlaceIndentationAndReason) {
  const auto lines = ReadLines("f", "entity A\n\n# a comment\n  Name string   -- why it differs\n");
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_FALSE(lines[0].indented);
  EXPECT_EQ(lines[1].text, "Name string");
  EXPECT_EQ(lines[1].reason, "why it differs");
  EXPECT_TRUE(lines[1].indented);
  EXPECT_EQ(lines[1].place.line, 4);
  EXPECT_EQ(lines[1].place.column, 3);
}

TEST(ReadLines, JoinsALineThatIsIndentedBySixBlanksOrMore) {
  const auto lines = ReadLines("f", "  ops A,\n      B\n  doc C");
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0].text, "ops A, B");
}

TEST(ReadLines, ReadsDashesInsideAWordAsText) {
  EXPECT_EQ(ReadLines("f", "doc a--b c-- d").front().text, "doc a--b c-- d");
}

TEST(ReadLines, ReadsAFileWithCarriageReturns) {
  EXPECT_EQ(ReadLines("f", "doc a\r\ndoc b\r\n").back().text, "doc b");
}

TEST(ReadLines, RefusesATabWithItsPlace) {
  try {
    ReadLines("f", "entity A\n  \tName");
    FAIL();
  } catch (const DescriptionError& error) {
    EXPECT_STREQ(error.what(), "f:2:3: error: a tab; indent with blanks");
  }
}

}  // namespace
}  // namespace schemac
