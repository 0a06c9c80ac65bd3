#include "kelifc/core/text/iso8859.h"

#include <gtest/gtest.h>

namespace KelIFC {
namespace {

TEST(Iso8859, HasTheSameLowerHalfInAllPages) {
  for (char page = 'A'; page <= 'I'; ++page) {
    for (int byte = 0; byte < 0xA0; ++byte) {
      EXPECT_EQ(DecodeIso8859(page, static_cast<unsigned char>(byte)), static_cast<char32_t>(byte));
    }
    EXPECT_EQ(DecodeIso8859(page, 0xA0), 0xA0U);
  }
}

TEST(Iso8859, IsLatin1InTheFirstPage) {
  for (int byte = 0; byte < 0x100; ++byte) {
    EXPECT_EQ(DecodeIso8859('A', static_cast<unsigned char>(byte)), static_cast<char32_t>(byte));
  }
}

TEST(Iso8859, HasThePagesInTheirOrder) {
  EXPECT_EQ(DecodeIso8859('B', 0xB1), U'\u0105');  // Central European
  EXPECT_EQ(DecodeIso8859('B', 0xFF), U'\u02D9');
  EXPECT_EQ(DecodeIso8859('C', 0xA1), U'\u0126');  // South European
  EXPECT_EQ(DecodeIso8859('D', 0xA2), U'\u0138');  // North European
  EXPECT_EQ(DecodeIso8859('E', 0xD0), U'\u0430');  // Cyrillic
  EXPECT_EQ(DecodeIso8859('E', 0xA7), U'\u0407');
  EXPECT_EQ(DecodeIso8859('F', 0xC7), U'\u0627');  // Arabic
  EXPECT_EQ(DecodeIso8859('G', 0xE1), U'\u03B1');  // Greek
  EXPECT_EQ(DecodeIso8859('H', 0xE0), U'\u05D0');  // Hebrew
  EXPECT_EQ(DecodeIso8859('I', 0xF0), U'\u011F');  // Turkish
  EXPECT_EQ(DecodeIso8859('I', 0xFC), U'\u00FC');
}

TEST(Iso8859, ReturnsZeroIfAPageHasNoCharacter) {
  EXPECT_EQ(DecodeIso8859('C', 0xA5), 0U);
  EXPECT_EQ(DecodeIso8859('F', 0xFF), 0U);
  EXPECT_EQ(DecodeIso8859('@', 0x41), 0U);
  EXPECT_EQ(DecodeIso8859('J', 0x41), 0U);
}

}  // namespace
}  // namespace KelIFC
