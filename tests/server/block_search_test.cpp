#include "kelifc/server/block_search.h"

#include <gtest/gtest.h>

#include <string>

namespace KelIFC {
namespace {

TEST(BlockSearch, FindsTheFirstHitAtEveryDistanceAndAlignment) {
  for (std::size_t start = 0; start < 16; ++start) {
    for (std::size_t distance = 0; distance < 70; ++distance) {
      std::string text(start + distance, 'x');
      if (start > 0) text[start - 1] = ';';
      text += "'x;";
      const char* begin = text.data() + start;
      const char* end = text.data() + text.size();
      ASSERT_EQ((FindAnyOf<';', '\''>(begin, end)), begin + distance);
      ASSERT_EQ((FindMatchBytewise<Is<';'>, Is<'\''>>(begin, end)), begin + distance);
    }
  }
}

TEST(BlockSearch, ReturnsTheEndIfNothingIsFound) {
  const std::string text(100, 'x');
  const char* end = text.data() + 50;
  for (std::size_t start = 0; start <= 50; ++start) {
    ASSERT_EQ((FindAnyOf<';', '\0'>(text.data() + start, end)), end);
  }
}

TEST(BlockSearch, DistinguishesAllBytes) {
  for (int code = 0; code < 256; ++code) {
    const std::string text(20, static_cast<char>(code));
    const char* begin = text.data();
    const bool wanted = code == ';' || code == 0 || code == 0xE4;
    const char* expected = wanted ? begin : begin + text.size();
    ASSERT_EQ((FindAnyOf<';', '\0', '\xE4'>(begin, begin + text.size())), expected);
  }
}

/// Returns where a search finds a byte among others, in a block and alone.
template <class... Matchers>
bool Matches(int code) {
  std::string text(40, 'm');
  text[5] = static_cast<char>(code);
  const char* begin = text.data();
  const bool inBlock = FindMatch<Matchers...>(begin, begin + 40) == begin + 5;
  const bool alone = FindMatch<Matchers...>(begin + 5, begin + 6) == begin + 5;
  EXPECT_EQ(inBlock, alone) << code;
  return inBlock;
}

TEST(BlockSearch, MatchesRangesOfCharacters) {
  for (int code = 0; code < 256; ++code) {
    const auto at = static_cast<unsigned char>(code);
    EXPECT_EQ((Matches<Within<'\'', ')'>>(code)), at >= '\'' && at <= ')') << code;
    EXPECT_EQ((Matches<Within<'a', 'l'>, Within<'n', 'z'>>(code)),
              at >= 'a' && at <= 'z' && at != 'm')
        << code;
    EXPECT_EQ((Matches<Below<'#'>>(code)), at < '#' || at > 127) << code;
    EXPECT_EQ((Matches<Below<'\0'>, Is<'x'>>(code)), at == 'x' || at > 127) << code;
  }
}

}  // namespace
}  // namespace KelIFC
