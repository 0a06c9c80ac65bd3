#include "kelifc/core/text_attribute.h"

#include <gtest/gtest.h>

#include <string>

#include "kelifc/core/memory/load_arena.h"

#include "tests/core/text.h"

namespace KelIFC {
namespace {

TEST(TextAttribute, IsUnsetAndEmptyAtFirst) {
  const TextAttribute text;
  EXPECT_FALSE(text.GetExists());
  EXPECT_EQ(text.GetText(), "");
  EXPECT_STREQ(text.GetChars(), "");
  EXPECT_EQ(Text(text), "$");
}

TEST(TextAttribute, CanBeSetToAText) {
  TextAttribute text;
  text = "abc";
  EXPECT_TRUE(text.GetExists());
  EXPECT_EQ(text.GetText(), "abc");
  EXPECT_STREQ(text.GetChars(), "abc");
  EXPECT_EQ(Text(TextAttribute("Plan")), "'Plan'");
}

TEST(TextAttribute, ExistsWithAnEmptyText) {
  TextAttribute text;
  text = "";
  EXPECT_TRUE(text.GetExists());
  EXPECT_EQ(Text(text), "''");
}

TEST(TextAttribute, IsUnsetByTheAssignmentOfNull) {
  TextAttribute text("abc");
  text = static_cast<const char*>(nullptr);
  EXPECT_FALSE(text.GetExists());
  EXPECT_EQ(text.GetText(), "");
}

TEST(TextAttribute, CanBeSetToAPartOfItself) {
  TextAttribute text("abcdef");
  text = text.GetChars() + 3;
  EXPECT_EQ(text.GetText(), "def");
}

TEST(TextAttribute, CopiesTextAndMark) {
  const TextAttribute set("abc");
  TextAttribute copy(set);
  EXPECT_EQ(Text(copy), "'abc'");
  EXPECT_EQ(Text(set), "'abc'");
  const TextAttribute& same = copy;
  copy = same;
  EXPECT_EQ(Text(copy), "'abc'");
  copy = TextAttribute();
  EXPECT_EQ(Text(copy), "$");
}

TEST(TextAttribute, BecomesAString) {
  const TextAttribute set("abc");
  const STRING text = set;
  EXPECT_TRUE(text.GetExists());
  EXPECT_EQ(text, "abc");
  const STRING unset = TextAttribute();
  EXPECT_FALSE(unset.GetExists());
}

TEST(TextAttribute, TakesAString) {
  TextAttribute text;
  text = STRING(std::string("a\0b", 3));
  EXPECT_EQ(text.GetText(), std::string("a\0b", 3));
  text = STRING();
  EXPECT_FALSE(text.GetExists());
}

TEST(TextAttribute, CanBeAssignedATextWithNuls) {
  TextAttribute text;
  text.Assign(std::string_view("a\0b", 3));
  EXPECT_TRUE(text.GetExists());
  EXPECT_EQ(text.GetText(), std::string_view("a\0b", 3));
}

TEST(TextAttribute, KeepsTextsOfEveryLength) {
  for (const std::size_t length : {1, 15, 63, 64, 127, 128, 8191, 8192, 1048576}) {
    const std::string characters(length, 'x');
    TextAttribute text;
    text = characters.c_str();
    EXPECT_EQ(text.GetText(), characters);
    EXPECT_TRUE(text.GetExists());
  }
}

TEST(TextAttribute, ReadsAndWritesAsAStringDoes) {
  const char* const texts[] = {
      "'a,b' , 'c'", "'a')",          "''",      "$",       "*",   " $ ,5", "",          "x('a'),2",
      "'it\\'s',1",  "'\\X\\E4\\\\'", "'a''b',", "'\\X\\0", "'ab", "'a\\",  "'a\\' b,c", "1.5,2"};
  for (const char* const source : texts) {
    STRING expected(std::string("old"));
    TextAttribute text("old");
    EXPECT_EQ(RestOf(text, source), RestOf(expected, source)) << source;
    EXPECT_EQ(text.GetExists(), expected.GetExists()) << source;
    EXPECT_EQ(text.GetText(), std::string_view(expected)) << source;
    EXPECT_EQ(Text(text), Text(expected)) << source;
    const STRING taken = text;
    EXPECT_EQ(taken.GetExists(), expected.GetExists()) << source;
    EXPECT_EQ(std::string_view(taken), std::string_view(expected)) << source;
  }
}

TEST(TextAttribute, IsUnsetByANullCursor) {
  TextAttribute text("abc");
  EXPECT_EQ(text.Parse(nullptr), nullptr);
  EXPECT_FALSE(text.GetExists());
}

TEST(TextAttribute, OutlivesTheArenaOfALoad) {
  TextAttribute text;
  {
    const LoadArena arena;
    text.Parse("'made during a load'");
  }
  EXPECT_EQ(text.GetText(), "made during a load");
  text = "changed after the load";
  EXPECT_EQ(text.GetText(), "changed after the load");
}

}  // namespace
}  // namespace KelIFC
