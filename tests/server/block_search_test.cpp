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
      ASSERT_EQ((FindAnyOfBytewise<';', '\''>(begin, end)), begin + distance);
    }
  }
}

TEST(BlockSearch, GivesTheEndWhereNothingIsFound) {
  const std::string text(100, 'x');
  const char* end = text.data() + 50;
  for (std::size_t start = 0; start <= 50; ++start) {
    ASSERT_EQ((FindAnyOf<';', '\0'>(text.data() + start, end)), end);
  }
}

TEST(BlockSearch, TellsApartAllBytes) {
  for (int code = 0; code < 256; ++code) {
    const std::string text(20, static_cast<char>(code));
    const char* begin = text.data();
    const bool wanted = code == ';' || code == 0 || code == 0xE4;
    const char* expected = wanted ? begin : begin + text.size();
    ASSERT_EQ((FindAnyOf<';', '\0', '\xE4'>(begin, begin + text.size())), expected);
  }
}

}  // namespace
}  // namespace KelIFC
