#include "kelifc/platform/com_text.h"

#include <gtest/gtest.h>

#include "kelifc/platform/com_bstr.h"

namespace KelIFC {
namespace {

std::string AllBytes() {
  std::string bytes;
  for (int i = 0; i < 256; ++i) bytes += static_cast<char>(i);
  return bytes;
}

TEST(CrossingText, GoesBothWaysWithoutLossForEveryByte) {
  Bstr wide;
  ASSERT_EQ(GiveText(AllBytes(), wide.Put()), S_OK);
  ASSERT_EQ(wide.Text().size(), 256U);
  EXPECT_EQ(wide.Text()[0xFC], L'ü');
  EXPECT_EQ(NarrowText(wide.Get()), AllBytes());
}

TEST(CrossingText, HasAQuestionMarkForACharacterAbove255) {
  EXPECT_EQ(NarrowText(Bstr(L"a\u0100\u20ACb").Get()), "a??b");
  EXPECT_EQ(NarrowText(Bstr(std::wstring(1, static_cast<wchar_t>(-1))).Get()), "?");
}

TEST(CrossingText, IsUtf8OnRequest) {
  EXPECT_EQ(Utf8Text(L"a\u007F\u0080\u07FF\u0800\uFFFF"),
            "a\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF");
  EXPECT_EQ(Utf8Text(L"\U00010000\U0010FFFF"), "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF");
  EXPECT_EQ(Utf8Text(std::wstring_view()), "");
}

TEST(CrossingText, TakesAPairOfSurrogatesForOneCharacter) {
  const std::wstring pair = {wchar_t{0xD83C}, wchar_t{0xDFE0}};
  EXPECT_EQ(Utf8Text(L"<" + pair + L">"), "<\xF0\x9F\x8F\xA0>");
}

TEST(CrossingText, ReplacesWhatUtf8CannotHold) {
  const std::string replacement = "\xEF\xBF\xBD";
  EXPECT_EQ(Utf8Text(std::wstring(1, wchar_t{0xD800})), replacement);
  EXPECT_EQ(Utf8Text(std::wstring{wchar_t{0xD800}, L'a'}), replacement + "a");
  EXPECT_EQ(Utf8Text(std::wstring{wchar_t{0xDFE0}, wchar_t{0xD83C}}), replacement + replacement);
}

TEST(CrossingText, IsGivenFromUtf8) {
  Bstr wide;
  ASSERT_EQ(GiveUtf8Text("T\xC3\xBCr \xE2\x82\xAC \xF0\x9F\x8F\xA0", wide.Put()), S_OK);
  EXPECT_EQ(wide.Text(), L"T\u00FCr \u20AC \U0001F3E0");
  ASSERT_EQ(GiveUtf8Text("T\xFCr", wide.Put()), S_OK);
  EXPECT_EQ(wide.Text(), L"T\u00FCr");
  ASSERT_EQ(GiveUtf8Text("", wide.Put()), S_OK);
  EXPECT_NE(wide.Get(), nullptr);
  EXPECT_EQ(GiveUtf8Text("text", nullptr), E_POINTER);
}

TEST(CrossingText, IsEmptyForNull) {
  EXPECT_EQ(NarrowText(nullptr), "");
  Bstr wide;
  ASSERT_EQ(GiveText("", wide.Put()), S_OK);
  EXPECT_NE(wide.Get(), nullptr);
}

TEST(CrossingText, RefusesANullOutput) { EXPECT_EQ(GiveText("text", nullptr), E_POINTER); }

TEST(CrossingPath, IsUtf8) {
  const std::wstring wide = L"A\u00FC\u20AC\U0001F3E0";
  const std::string narrow = "A\xC3\xBC\xE2\x82\xAC\xF0\x9F\x8F\xA0";
  EXPECT_EQ(NarrowPath(wide), narrow);
  EXPECT_EQ(WidePath(narrow), wide);
}

TEST(CrossingPath, SurvivesARoundTripForEachByte) {
  for (int i = 0; i < 256; ++i) {
    const std::string path = std::string("x") + static_cast<char>(i) + "y";
    EXPECT_EQ(NarrowPath(WidePath(path)), path) << i;
  }
}

TEST(CrossingPath, SurvivesARoundTripIfItIsNotUtf8) {
  for (const std::string path : {
           "\xC3",                  // cut short
           "\xE2\x82",              // cut short
           "\xE2\x28\xA1",          // no continuation byte
           "\xC0\xAF",              // overlong
           "\xE0\x80\xAF",          // overlong
           "\xF0\x80\x80\xAF",      // overlong
           "\xED\xB2\x80",          // a surrogate
           "\xF4\x90\x80\x80",      // above the last character
           "\xF5\x80\x80\x80",      // not a lead byte
           "h\xFCtte/\xE2\x82\xAC"  // an invalid and a valid part
       }) {
    EXPECT_EQ(NarrowPath(WidePath(path)), path);
  }
}

TEST(CrossingPath, ReplacesWhatUtf8CannotEncode) {
  EXPECT_EQ(NarrowPath(std::wstring(1, static_cast<wchar_t>(0xD800))), "\xEF\xBF\xBD");
  EXPECT_EQ(NarrowPath(std::wstring(1, static_cast<wchar_t>(0xDC7F))), "\xEF\xBF\xBD");
  EXPECT_EQ(NarrowPath(std::wstring(1, static_cast<wchar_t>(0x110000))), "\xEF\xBF\xBD");
}

}  // namespace
}  // namespace KelIFC
