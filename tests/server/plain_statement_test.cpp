#include "kelifc/server/plain_statement.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace KelIFC {
namespace {

// Returns the position of the end, or -1.
std::ptrdiff_t PositionIn(const std::string& text) {
  const char* const end = FindPlainEnd(text.data(), text.data() + text.size());
  return end == nullptr ? -1 : end - text.data();
}

TEST(PlainStatement, EndsAtTheFirstSemicolonOutsideOfStrings) {
  EXPECT_EQ(PositionIn("#1=IFCX('a;b',2);#2=Y();"), 16);
  EXPECT_EQ(PositionIn(";"), 0);
  EXPECT_EQ(PositionIn("'it''s;';"), 8);
  EXPECT_EQ(PositionIn("'a/b';"), 5);
  EXPECT_EQ(PositionIn("a\\b;"), 3);
}

TEST(PlainStatement, IsNotPlainIfTheDialectsHaveRulesForIt) {
  for (const char* text : {"a\nb;", "a\rb;", "'a\nb';", "a/b;", "'a\\b';"}) {
    EXPECT_EQ(PositionIn(text), -1) << text;
  }
  EXPECT_EQ(PositionIn(std::string("a\0b;", 4)), -1);
}

TEST(PlainStatement, HasNoEndIfTheTextEndsBefore) {
  for (const char* text : {"", "abc", "'abc;", "';"}) EXPECT_EQ(PositionIn(text), -1) << text;
}

TEST(PlainStatement, IsFoundAtEachDistanceFromEachAlignment) {
  for (std::size_t start = 0; start < 64; ++start) {
    for (std::size_t length = 0; length < 200; ++length) {
      std::string text = std::string(start, ';') + std::string(length, 'x') + ";;";
      if (length > 10) text.replace(start + length - 9, 4, "';;'");
      const char* const begin = text.data() + start;
      for (const PlainEndFinder find : GetPlainEndFinders()) {
        ASSERT_EQ(find(begin, text.data() + text.size()), begin + length);
        ASSERT_EQ(find(begin, begin + length), nullptr);
      }
    }
  }
}

TEST(PlainStatement, IsTheSameWithAllInstructionsOfTheProcessor) {
  const std::vector<PlainEndFinder> finders = GetPlainEndFinders();
  ASSERT_EQ(finders.back(), &FindPlainEndBytewise);
  constexpr char kCharacters[] = {'a', 'b', 'c', ' ', '(', ',', '\'', '\'', ';', '\xE4', '\xBB'};
  constexpr char kRare[] = {'/', '\\', '\n', '\r', '\0', '\t'};
  std::mt19937 random(4711);
  for (int run = 0; run < 50000; ++run) {
    std::string text;
    while (text.size() < random() % 300) {
      text += random() % 3 == 0 ? kCharacters[random() % sizeof kCharacters] : 'x';
    }
    if (random() % 2 == 0 && !text.empty()) {
      text[random() % text.size()] = kRare[random() % sizeof kRare];
    }
    const char* const begin = text.data();
    const char* const end = begin + text.size();
    const char* const expected = FindPlainEndBytewise(begin, end);
    for (const PlainEndFinder find : finders) ASSERT_EQ(find(begin, end), expected) << text;
  }
}

}  // namespace
}  // namespace KelIFC
