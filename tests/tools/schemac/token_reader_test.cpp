#include "tools/schemac/token_reader.h"

#include <gtest/gtest.h>

namespace schemac {
namespace {

Line MakeLine(const std::string& text) { return {{"f", 1, 1}, false, text, ""}; }

TEST(TokenReader, ReadsWordsAndNames) {
  const Line line = MakeLine("IfcWall: $ .X.");
  TokenReader in(line);
  EXPECT_EQ(in.Name("a name"), "IfcWall");
  EXPECT_TRUE(in.Take(":"));
  EXPECT_EQ(in.Word("a word"), "$");
  EXPECT_EQ(in.Rest(), ".X.");
  EXPECT_TRUE(in.AtEnd());
}

TEST(TokenReader, TakesOnlyWholeWords) {
  const Line line = MakeLine("filename");
  TokenReader in(line);
  EXPECT_FALSE(in.Take("file"));
  EXPECT_TRUE(in.Take("filename"));
}

TEST(TokenReader, StopsOnlyOutsideParentheses) {
  const Line line = MakeLine("(A a, B b), C");
  TokenReader in(line);
  EXPECT_EQ(in.Until(","), "(A a, B b)");
}

TEST(TokenReader, NamesTheColumnOfAnError) {
  const Line line = MakeLine("ab ;");
  TokenReader in(line);
  in.Word("a word");
  try {
    in.Name("a name");
    FAIL();
  } catch (const DescriptionError& error) {
    EXPECT_STREQ(error.what(), "f:1:4: error: expected a name");
  }
}

TEST(TokenReader, NamesTheLineOfAContinuation) {
  const auto lines = ReadLines("f", "  ops A,\n      B,\n        C");
  TokenReader in(lines.front());
  const auto place = [&](std::string_view text) {
    in.Expect(text);
    const Place here = in.Here();
    return std::to_string(here.line) + ":" + std::to_string(here.column);
  };
  EXPECT_EQ(place("ops"), "1:7");
  EXPECT_EQ(place("A,"), "2:7");
  EXPECT_EQ(place("B,"), "3:9");
  EXPECT_EQ(place("C"), "3:10");
}

}  // namespace
}  // namespace schemac
