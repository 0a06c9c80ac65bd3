#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <string>

#include "kelifc/core/global_id.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {
namespace {

_GUID AllOnes() {
  _GUID guid;
  std::memset(&guid, 0xFF, sizeof guid);
  return guid;
}

std::string Encode(const _GUID& guid) {
  char text[21];
  EXPECT_TRUE(IfcServer::EncodeGUID(guid, text));
  return text;
}

_GUID Decode(const std::string& text) {
  _GUID guid;
  std::memset(&guid, 0x5A, sizeof guid);
  EXPECT_TRUE(IfcServer::DecodeGUID(text.c_str(), guid));
  return guid;
}

TEST(GlobalIds, WriteTheNullIdentifierAsZeros) { EXPECT_EQ(Encode(_GUID{}), std::string(20, '0')); }

TEST(GlobalIds, BeginWithDigit74ForAllOnes) {
  EXPECT_EQ(Encode(AllOnes())[0], '/');
  EXPECT_EQ(Decode(Encode(AllOnes())), AllOnes());
}

TEST(GlobalIds, BeginWithTheLowByteOfTheFirstField) {
  _GUID last = {};
  last.Data4[7] = 1;
  EXPECT_EQ(Encode(last), std::string(19, '0') + "1");
  _GUID lowByte = {};
  lowByte.Data1 = 0x80;  // 2^127, which is 37 times 85^19 and a rest
  EXPECT_EQ(Encode(lowByte)[0], 'b');
  _GUID highByte = {};
  highByte.Data1 = 0x80000000;
  EXPECT_EQ(Encode(highByte)[0], '0');
}

TEST(GlobalIds, AreReadBackFromTheirText) {
  const _GUID guid = {0x01234567, 0x89AB, 0xCDEF, {0x10, 0x32, 0x54, 0x76, 0x98, 0xBA, 0xDC, 0xFE}};
  EXPECT_EQ(Encode(guid), "U8&dFXNbl~Xa/@A+2V?0");
  EXPECT_EQ(Decode(Encode(guid)), guid);
  std::mt19937 random(7);
  for (int i = 0; i < 1000; ++i) {
    _GUID other;
    for (std::size_t byte = 0; byte < sizeof other; ++byte) {
      reinterpret_cast<unsigned char*>(&other)[byte] = static_cast<unsigned char>(random());
    }
    ASSERT_EQ(Decode(Encode(other)), other);
  }
}

TEST(GlobalIds, ReadOnlyTheFirstTwentyCharacters) {
  const std::string text = Encode(AllOnes());
  EXPECT_EQ(Decode(text + "x"), AllOnes());
}

TEST(GlobalIds, DoNotChangeTheResultWhenTheTextIsTooShort) {
  _GUID guid = AllOnes();
  EXPECT_FALSE(IfcServer::DecodeGUID("0000000000000000000", guid));
  EXPECT_FALSE(IfcServer::DecodeGUID("", guid));
  EXPECT_FALSE(IfcServer::DecodeGUID(nullptr, guid));
  EXPECT_EQ(guid, AllOnes());
}

TEST(GlobalIds, ReadACharacterOutsideTheAlphabetAsZero) {
  EXPECT_TRUE(IsNullGuid(Decode(std::string(20, ' '))));
  EXPECT_TRUE(IsNullGuid(Decode(std::string(20, '\xE4'))));
}

TEST(GlobalIds, WrapIfTheTextExceeds128Bits) {
  // Twenty of the highest digit are the number 85^20 - 1, of which the lowest 128 bits are kept.
  const _GUID lowBits = {
      0x3C249823, 0x0F5D, 0x0A05, {0x33, 0x85, 0xD8, 0x39, 0x67, 0xE7, 0x31, 0x70}};
  EXPECT_EQ(Decode(std::string(20, '_')), lowBits);
}

TEST(GlobalIds, WriteNothingToANullText) { EXPECT_FALSE(IfcServer::EncodeGUID(_GUID{}, nullptr)); }

TEST(GlobalIds, AreMadeNewInBothForms) {
  const std::string text85 = IfcServer::CreateGlobalId();
  EXPECT_EQ(text85.size(), 20u);
  EXPECT_FALSE(IsNullGuid(Decode(text85)));
  EXPECT_NE(text85, IfcServer::CreateGlobalId());
  const std::string text64 = IfcServer::CreateGlobalId2x();
  EXPECT_EQ(text64.size(), 22u);
  _GUID guid = {};
  EXPECT_TRUE(DecodeGlobalId64(text64.c_str(), guid));
  EXPECT_FALSE(IsNullGuid(guid));
  EXPECT_NE(text64, IfcServer::CreateGlobalId2x());
}

}  // namespace
}  // namespace KelIFC
