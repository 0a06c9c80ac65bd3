#include "kelifc/platform/com_guid.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr GUID kGuid = {
    0x00112233, 0x4455, 0x6677, {0x88, 0x99, 0xAA, 0xBB, 0xCC, 0xDD, 0xEE, 0xFF}};
constexpr wchar_t kText[] = L"{00112233-4455-6677-8899-AABBCCDDEEFF}";

TEST(GuidText, HasBraces) {
  wchar_t text[39];
  EXPECT_EQ(StringFromGUID2(kGuid, text, 39), 39);
  EXPECT_EQ(std::wstring(text), kText);
}

TEST(GuidText, IsNotWrittenIntoTooSmallABuffer) {
  wchar_t text[39] = L"kept";
  EXPECT_EQ(StringFromGUID2(kGuid, text, 38), 0);
  EXPECT_EQ(std::wstring(text), L"kept");
  EXPECT_EQ(StringFromGUID2(kGuid, nullptr, 39), 0);
}

TEST(GuidText, ReadsBackInUpperAndLowerCase) {
  CLSID guid = {};
  EXPECT_EQ(CLSIDFromString(kText, &guid), S_OK);
  EXPECT_EQ(guid, kGuid);
  guid = {};
  EXPECT_EQ(CLSIDFromString(L"{00112233-4455-6677-8899-aabbccddeeff}", &guid), S_OK);
  EXPECT_EQ(guid, kGuid);
}

TEST(GuidText, IsRefusedInAnyOtherForm) {
  for (const wchar_t* text : {
           L"",
           L"{",
           L"00112233-4455-6677-8899-AABBCCDDEEFF",
           L"{00112233-4455-6677-8899-AABBCCDDEEF}",
           L"{00112233-4455-6677-8899-AABBCCDDEEFFF",
           L"{00112233-4455-6677-8899-AABBCCDDEEFF} ",
           L"{00112233-4455-6677-8899-AABBCCDDEEFG}",
           L"{0011223344-55-6677-8899-AABBCCDDEEFF}",
           L"{00112233-4455-6677-8899-AABBCCDDEEFF",
           L"KelIFC.IFCServer.1",
       }) {
    CLSID guid = kGuid;
    EXPECT_EQ(CLSIDFromString(text, &guid), CO_E_CLASSSTRING) << std::wstring(text).size();
    EXPECT_EQ(guid, GUID{});
  }
}

TEST(GuidText, IsRefusedWhereAnArgumentIsNull) {
  CLSID guid = {};
  EXPECT_EQ(CLSIDFromString(nullptr, &guid), E_INVALIDARG);
  EXPECT_EQ(CLSIDFromString(kText, nullptr), E_INVALIDARG);
}

}  // namespace
