#include "kelifc/platform/utf8.h"

#include <gtest/gtest.h>

#include <string>

namespace KelIFC {
namespace {

std::string Utf8Of(char32_t code) {
  std::string text;
  AppendUtf8(text, code);
  return text;
}

TEST(Utf8, WritesEachLengthOfSequence) {
  EXPECT_EQ(Utf8Of(0x24), "$");
  EXPECT_EQ(Utf8Of(0x7F), "\x7F");
  EXPECT_EQ(Utf8Of(0x80), "\xC2\x80");
  EXPECT_EQ(Utf8Of(0x7FF), "\xDF\xBF");
  EXPECT_EQ(Utf8Of(0x800), "\xE0\xA0\x80");
  EXPECT_EQ(Utf8Of(0xFFFF), "\xEF\xBF\xBF");
  EXPECT_EQ(Utf8Of(0x10000), "\xF0\x90\x80\x80");
  EXPECT_EQ(Utf8Of(0x10FFFF), "\xF4\x8F\xBF\xBF");
}

TEST(Utf8, WritesTheReplacementForACodeThatIsNoCharacter) {
  for (const char32_t code : {0xD800U, 0xDFFFU, 0x110000U, 0xFFFFFFFFU}) {
    EXPECT_EQ(Utf8Of(code), "\xEF\xBF\xBD") << static_cast<unsigned>(code);
  }
}

TEST(Utf8, ReadsBackEveryCharacter) {
  for (char32_t code = 0; code <= 0x10FFFF; ++code) {
    if (!IsScalarValue(code)) continue;
    const std::string text = Utf8Of(code);
    std::string_view rest = text;
    char32_t read = 0;
    ASSERT_TRUE(TakeUtf8(rest, read)) << static_cast<unsigned>(code);
    ASSERT_EQ(read, code);
    ASSERT_TRUE(rest.empty()) << static_cast<unsigned>(code);
  }
}

TEST(Utf8, RefusesWhatIsNotWellFormed) {
  for (const char* text : {
           "\x80",              // a tail byte alone
           "\xC3",              // cut
           "\xE2\x82",          // cut
           "\xE2\x28\xA1",      // a tail byte is missing
           "\xC0\xAF",          // longer than needed
           "\xE0\x80\xAF",      // longer than needed
           "\xF0\x80\x80\xAF",  // longer than needed
           "\xED\xB2\x80",      // a surrogate
           "\xF4\x90\x80\x80",  // above the last character
           "\xF5\x80\x80\x80",  // no lead byte
       }) {
    std::string_view rest = text;
    char32_t code = 7;
    EXPECT_FALSE(TakeUtf8(rest, code));
    EXPECT_EQ(rest, text);
    EXPECT_EQ(code, 7U);
    EXPECT_FALSE(IsValidUtf8(text));
    EXPECT_FALSE(IsValidUtf8(std::string("a") + text + "b"));
  }
}

TEST(Utf8, IsValidAsAWhole) {
  EXPECT_TRUE(IsValidUtf8(""));
  EXPECT_TRUE(IsValidUtf8("plain"));
  EXPECT_TRUE(IsValidUtf8("T\xC3\xBCr \xE2\x82\xAC \xF0\x9F\x8F\xA0"));
  EXPECT_FALSE(IsValidUtf8("T\xC3\xBCr \xFC"));
}

TEST(Utf8, TakesTextThatIsNotWellFormedForLatin1) {
  EXPECT_EQ(ToUtf8("T\xC3\xBCr"), "T\xC3\xBCr");
  EXPECT_EQ(ToUtf8("T\xFCr"), "T\xC3\xBCr");
  EXPECT_EQ(ToUtf8("T\xC3\xBCr\xFC"), "T\xC3\x83\xC2\xBCr\xC3\xBC");
}

TEST(Utf8, BecomesWideTextAndBack) {
  const std::wstring wide = L"T\u00FCr \u20AC \U0001F3E0";
  const std::string narrow = "T\xC3\xBCr \xE2\x82\xAC \xF0\x9F\x8F\xA0";
  EXPECT_EQ(WideFromUtf8(narrow), wide);
  EXPECT_EQ(Utf8FromWide(wide), narrow);
  EXPECT_EQ(WideFromUtf8("a\xFFz"), L"a\uFFFDz");
}

TEST(Utf8, JoinsSurrogatesOfWideText) {
  const std::wstring pair = {static_cast<wchar_t>(0xD83C), static_cast<wchar_t>(0xDFE0)};
  EXPECT_EQ(Utf8FromWide(pair), "\xF0\x9F\x8F\xA0");
  EXPECT_EQ(Utf8FromWide(pair.substr(0, 1)), "\xEF\xBF\xBD");
  EXPECT_EQ(Utf8FromWide(pair.substr(1)), "\xEF\xBF\xBD");
  EXPECT_EQ(Utf8FromWide(pair.substr(0, 1) + L"a"),
            "\xEF\xBF\xBD"
            "a");
}

}  // namespace
}  // namespace KelIFC
