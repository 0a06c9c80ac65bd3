#include "kelifc/core/global_id.h"

#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <string>

namespace KelIFC {
namespace {

constexpr _GUID kNull = {};
constexpr _GUID kDistinct = {
    0x01234567, 0x89AB, 0xCDEF, {0x10, 0x32, 0x54, 0x76, 0x98, 0xBA, 0xDC, 0xFE}};

_GUID AllOnes() {
  _GUID guid;
  std::memset(&guid, 0xFF, sizeof guid);
  return guid;
}

std::string Text64(const _GUID& guid) {
  char text[23];
  EXPECT_EQ(EncodeGlobalId64(guid, text, sizeof text), text);
  return text;
}

std::string Text85(const _GUID& guid) {
  char text[21];
  EncodeBase85(guid, text);
  return text;
}

bool Equal(const _GUID& a, const _GUID& b) { return std::memcmp(&a, &b, sizeof a) == 0; }

TEST(GlobalId, WritesZerosForTheNullIdentifier) {
  EXPECT_EQ(Text64(kNull), std::string(22, '0'));
  EXPECT_EQ(Text85(kNull), std::string(20, '0'));
}

TEST(GlobalId, WritesTheHighestIdentifier) {
  EXPECT_EQ(Text64(AllOnes()), "3" + std::string(21, '$'));
  EXPECT_EQ(Text85(AllOnes())[0], '/');
}

TEST(GlobalId, WritesTheFieldsOfThePublishedFormInTheirTextualOrder) {
  // 01 234567 89ABCD EF1032 547698 BADCFE, two digits of base 64 and five times four.
  EXPECT_EQ(Text64(kDistinct), "018qLdYQlDxn0oL7QOkjp_");
}

TEST(GlobalId, WritesTheOlderFormFromTheLowByteOfTheFirstField) {
  _GUID low = {};
  low.Data4[7] = 84;
  EXPECT_EQ(Text85(low), "0000000000000000000_");
  low.Data4[7] = 85;
  EXPECT_EQ(Text85(low), "00000000000000000010");
  _GUID high = {};
  high.Data1 = 0xFF;
  _GUID lower = {};
  lower.Data1 = 0xFF000000;
  EXPECT_NE(Text85(high)[0], '0');
  EXPECT_EQ(Text85(lower)[0], '0');
}

TEST(GlobalId, ReadsBackWhatItWrites) {
  std::mt19937 random(50);
  for (int round = 0; round < 10000; ++round) {
    _GUID guid = kDistinct;
    if (round > 0) {
      guid.Data1 = static_cast<std::uint32_t>(random());
      guid.Data2 = static_cast<std::uint16_t>(random());
      guid.Data3 = static_cast<std::uint16_t>(random());
      for (auto& byte : guid.Data4) byte = static_cast<std::uint8_t>(random());
    }
    _GUID back = {};
    ASSERT_TRUE(DecodeGlobalId64(Text64(guid).c_str(), back));
    ASSERT_TRUE(Equal(back, guid));
    back = {};
    ASSERT_TRUE(DecodeBase85(Text85(guid).c_str(), back));
    ASSERT_TRUE(Equal(back, guid));
  }
}

TEST(GlobalId, NeedsRoomFor22CharactersAndANul) {
  char text[23] = "untouched";
  EXPECT_EQ(EncodeGlobalId64(kDistinct, text, 22), nullptr);
  EXPECT_STREQ(text, "untouched");
  EXPECT_EQ(EncodeGlobalId64(kDistinct, text, -1), nullptr);
  EXPECT_EQ(EncodeGlobalId64(kDistinct, nullptr, 23), nullptr);
  EXPECT_EQ(EncodeGlobalId64(kDistinct, text, 23), text);
}

TEST(GlobalId, Reads22CharactersOfTheAlphabetOnly) {
  const std::string digits(24, '1');
  for (const std::size_t length : {0, 20, 21, 23, 24}) {
    _GUID guid = kDistinct;
    EXPECT_FALSE(DecodeGlobalId64(digits.substr(0, length).c_str(), guid)) << length;
    EXPECT_TRUE(Equal(guid, kDistinct));
  }
  _GUID guid = kDistinct;
  EXPECT_FALSE(DecodeGlobalId64(std::string(22, ' ').c_str(), guid));
  EXPECT_FALSE(DecodeGlobalId64("111111111111111111111-", guid));
  EXPECT_FALSE(DecodeGlobalId64(nullptr, guid));
  EXPECT_TRUE(Equal(guid, kDistinct));
}

TEST(GlobalId, LosesTheBitsAboveTheFirstByte) {
  _GUID guid = {};
  ASSERT_TRUE(DecodeGlobalId64(("$$" + std::string(20, '0')).c_str(), guid));
  EXPECT_EQ(guid.Data1, 0xFF000000U);
}

TEST(GlobalId, ReadsTheFirst20CharactersOfTheOlderForm) {
  const std::string text = Text85(kDistinct);
  _GUID guid = {};
  EXPECT_TRUE(DecodeBase85((text + "x").c_str(), guid));
  EXPECT_TRUE(Equal(guid, kDistinct));
  EXPECT_FALSE(DecodeBase85(text.substr(0, 19).c_str(), guid));
  EXPECT_FALSE(DecodeBase85(nullptr, guid));
  EXPECT_TRUE(Equal(guid, kDistinct));
}

TEST(GlobalId, ReadsACharacterOutsideTheOlderAlphabetAsZero) {
  _GUID guid = kDistinct;
  EXPECT_TRUE(DecodeBase85(std::string(20, ' ').c_str(), guid));
  EXPECT_TRUE(Equal(guid, kNull));
}

TEST(GlobalId, WrapsASumAboveTheRange) {
  // The highest text is the number 85^20 - 1; its low 128 bits are 85^20 - 1 - 2^128.
  _GUID highest = {};
  ASSERT_TRUE(DecodeBase85(std::string(20, '_').c_str(), highest));
  const std::string text = Text85(highest);
  EXPECT_NE(text, std::string(20, '_'));
  _GUID back = {};
  ASSERT_TRUE(DecodeBase85(text.c_str(), back));
  EXPECT_TRUE(Equal(back, highest));
}

TEST(GlobalId, CanBeCheckedWithoutDecodingIt) {
  EXPECT_TRUE(IsGlobalId64("018qLdYQlDxn0oL7QOkjp_"));
  EXPECT_FALSE(IsGlobalId64("018qLdYQlDxn0oL7QOkjp")) << "too short";
  EXPECT_FALSE(IsGlobalId64("018qLdYQlDxn0oL7QOkjp_0")) << "too long";
  EXPECT_FALSE(IsGlobalId64("018qLdYQlD-n0oL7QOkjp_")) << "not in the alphabet";
  EXPECT_FALSE(IsGlobalId64(""));
  EXPECT_FALSE(IsGlobalId64(nullptr));
}

}  // namespace
}  // namespace KelIFC
