#include "kelifc/core/text/iso_binary.h"

#include <gtest/gtest.h>

namespace KelIFC {
namespace {

std::string BitsOf(const char* digits) {
  std::string bits = "=";
  return AppendBits(bits, digits) ? bits : "none" + bits.substr(1);
}

std::string BinaryOf(const char* bits) {
  std::string digits = "=";
  return AppendIsoBinary(digits, bits) ? digits : "none" + digits.substr(1);
}

TEST(IsoBinary, HasOneBitForEachBitOfItsDigits) {
  EXPECT_EQ(BitsOf("0FF"), "=11111111");
  EXPECT_EQ(BitsOf("0a5"), "=10100101");
  EXPECT_EQ(BitsOf("20F"), "=001111");
  EXPECT_EQ(BitsOf("31"), "=1");
  EXPECT_EQ(BitsOf("0"), "=");
}

TEST(IsoBinary, HasNoBitsInAnyOtherForm) {
  for (const char* digits : {"", "1", "4F", "0G", "F", "0 F", "-1"}) {
    EXPECT_EQ(BitsOf(digits), "none") << digits;
  }
}

TEST(IsoBinary, IsWrittenWithTheNumberOfUnusedBitsFirst) {
  EXPECT_EQ(BinaryOf("11111111"), "=0FF");
  EXPECT_EQ(BinaryOf("001111"), "=20F");
  EXPECT_EQ(BinaryOf("01"), "=21");
  EXPECT_EQ(BinaryOf("1"), "=31");
  EXPECT_EQ(BinaryOf("101"), "=15");
  EXPECT_EQ(BinaryOf(""), "=0");
  EXPECT_EQ(BinaryOf("012"), "none");
}

TEST(IsoBinary, ReadsBackAllShortBitTexts) {
  for (unsigned length = 0; length < 12; ++length) {
    for (unsigned value = 0; value < (1U << length); ++value) {
      std::string bits;
      for (unsigned i = length; i > 0; --i) bits += (value >> (i - 1) & 1) != 0 ? '1' : '0';
      EXPECT_EQ(BitsOf(BinaryOf(bits.c_str()).substr(1).c_str()), "=" + bits);
    }
  }
}

}  // namespace
}  // namespace KelIFC
