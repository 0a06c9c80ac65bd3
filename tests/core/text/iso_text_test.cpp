#include "kelifc/core/text/iso_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "kelifc/platform/utf8.h"

namespace KelIFC {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr char kBad[] = "\xEF\xBF\xBD";  // U+FFFD

class Offsets : public BadEscapeSink {
 public:
  explicit Offsets(const char* text) : begin(text) {}
  void NoteBadEscape(const char* escape) override { offsets.push_back(escape - begin); }

  const char* begin;
  std::vector<std::ptrdiff_t> offsets;
};

/// The result of decoding the text after an opening quote.
struct Decoded {
  std::string text;
  std::string rest;                 // after the closing quote; "(open)" if there is none
  std::vector<std::ptrdiff_t> bad;  // the starts of the bad escapes
};

Decoded Decode(const std::string& body) {
  Decoded decoded;
  Offsets offsets(body.data());
  const char* const end = body.data() + body.size();
  const char* closing = DecodeIsoString(body.data(), end, decoded.text, &offsets);
  decoded.rest = closing == nullptr ? "(open)" : std::string(closing + 1, end);
  decoded.bad = offsets.offsets;
  return decoded;
}

/// The text of a string without bad escapes.
std::string TextOf(const std::string& body) {
  const Decoded decoded = Decode(body + "',$");
  EXPECT_EQ(decoded.rest, ",$") << body;
  EXPECT_THAT(decoded.bad, IsEmpty()) << body;
  return decoded.text;
}

/// The text of a string with one bad escape.
std::string TextWithOneBad(const std::string& body) {
  const Decoded decoded = Decode(body + "',$");
  EXPECT_EQ(decoded.rest, ",$") << body;
  EXPECT_EQ(decoded.bad.size(), 1U) << body;
  return decoded.text;
}

std::string Encode(const std::string& text) {
  std::string out;
  AppendIsoString(out, text);
  return out;
}

/// Returns the text between the quotes.
std::string BodyOf(const std::string& quoted) { return quoted.substr(1, quoted.size() - 2); }

TEST(IsoText, IsUnchangedIfNothingIsEscaped) {
  EXPECT_EQ(TextOf(""), "");
  EXPECT_EQ(TextOf("Wall (200 mm); #1 = \"x\" /* y */"), "Wall (200 mm); #1 = \"x\" /* y */");
}

TEST(IsoText, AppendsToTheOutput) {
  std::string out = "a";
  const std::string body = "b'";
  DecodeIsoString(body.data(), body.data() + body.size(), out, nullptr);
  EXPECT_EQ(out, "ab");
}

TEST(IsoText, HasDoubledQuotesAndBackslashes) {
  EXPECT_EQ(TextOf("it''s"), "it's");
  EXPECT_EQ(TextOf("''''"), "''");
  EXPECT_EQ(TextOf("C:\\\\temp\\\\"), "C:\\temp\\");
  EXPECT_EQ(TextOf("\\\\S\\\\X"), "\\S\\X");
}

TEST(IsoText, StaysOpenWithoutAClosingQuote) {
  EXPECT_EQ(Decode("abc").rest, "(open)");
  EXPECT_EQ(Decode("abc").text, "abc");
  EXPECT_EQ(Decode("a''").rest, "(open)");
  EXPECT_EQ(Decode("\\X2\\00E4").text, "\xC3\xA4");
}

TEST(IsoText, ShiftsACharacterToTheUpperHalf) {
  EXPECT_EQ(TextOf("T\\S\\|r"), "T\xC3\xBCr");
  EXPECT_EQ(TextOf("\\S\\ "), "\xC2\xA0");
  EXPECT_EQ(TextOf("\\S\\~"), "\xC3\xBE");
  EXPECT_EQ(TextOf("\\S\\\\x"), "\xC3\x9Cx");  // the character is a backslash
  EXPECT_EQ(TextOf("\\S\\\\\\S\\|"), "\xC3\x9C\xC3\xBC");
}

TEST(IsoText, ShiftsWithinTheSelectedPage) {
  EXPECT_EQ(TextOf("\\PE\\\\S\\P"), "\xD0\xB0");
  EXPECT_EQ(TextOf("\\PB\\\\S\\1\\PA\\\\S\\1"), "\xC4\x85\xC2\xB1");
  EXPECT_EQ(TextOf("\\PI\\\\S\\p"), "\xC4\x9F");
  EXPECT_EQ(TextWithOneBad("\\PC\\x\\S\\%y"), std::string("x") + kBad + "y");
}

TEST(IsoText, EndsAfterAShiftedQuoteIfTheValueEnds) {
  struct Case {
    std::string body;
    std::string text;
    std::string rest;
  };
  const Case kCases[] = {
      {"\\S\\',$", kBad, ",$"},            // an escape that is cut short
      {"\\S\\'',$", "\xC2\xA7", ",$"},     // the character and the end
      {"\\S\\''',$", "\xC2\xA7", ",$"},    // its quote is doubled
      {"\\S\\'''',$", "\xC2\xA7'", ",$"},  // followed by a doubled quote
      {"\\S\\''''',$", "\xC2\xA7'", ",$"},
      {"\\S\\'')", "\xC2\xA7", ")"},
      {"\\S\\''  )", "\xC2\xA7", "  )"},
      {"\\S\\''", "\xC2\xA7", ""},
  };
  for (const Case& row : kCases) {
    const Decoded decoded = Decode(row.body);
    EXPECT_EQ(decoded.text, row.text) << row.body;
    EXPECT_EQ(decoded.rest, row.rest) << row.body;
    EXPECT_EQ(decoded.bad.size(), row.text == kBad ? 1U : 0U) << row.body;
  }
}

TEST(IsoText, ContinuesAfterAShiftedQuoteIfTextFollows) {
  EXPECT_EQ(TextOf("\\S\\'5"),
            "\xC2\xA7"
            "5");
  EXPECT_EQ(TextOf("\\S\\' 5 BauO"), "\xC2\xA7 5 BauO");
  EXPECT_EQ(TextOf("\\S\\''5"),
            "\xC2\xA7"
            "5");
  EXPECT_EQ(TextOf("\\S\\'''5"), "\xC2\xA7'5");
  EXPECT_EQ(TextOf("\\S\\''''5"), "\xC2\xA7'5");
  EXPECT_EQ(TextOf("\\PE\\\\S\\'a"),
            "\xD0\x87"
            "a");
}

TEST(IsoText, HasBytesOfLatin1) {
  EXPECT_EQ(TextOf("T\\X\\FCr"), "T\xC3\xBCr");
  EXPECT_EQ(TextOf("T\\X\\fcr"), "T\xC3\xBCr");
  EXPECT_EQ(TextOf("a\\X\\0Ab\\X\\27"), "a\nb'");
}

TEST(IsoText, HasGroupsOfFourDigits) {
  EXPECT_EQ(TextOf("caf\\X2\\00E9\\X0\\"), "caf\xC3\xA9");
  EXPECT_EQ(TextOf("\\X2\\20ac00E4\\X0\\x"), "\xE2\x82\xAC\xC3\xA4x");
  EXPECT_EQ(TextOf("\\X2\\0027005C\\X0\\"), "'\\");
  EXPECT_EQ(TextOf("\\X2\\\\X0\\"), "");
  EXPECT_EQ(TextOf("\\X2\\D83CDFE0\\X0\\"), "\xF0\x9F\x8F\xA0");
}

TEST(IsoText, HasGroupsOfEightDigits) {
  EXPECT_EQ(TextOf("\\X4\\0001F3E0\\X0\\"), "\xF0\x9F\x8F\xA0");
  EXPECT_EQ(TextOf("\\X4\\000000e40001F3E0\\X0\\"), "\xC3\xA4\xF0\x9F\x8F\xA0");
}

TEST(IsoText, LosesOnlyABadEscape) {
  const std::string bad = kBad;
  EXPECT_EQ(TextWithOneBad("C:\\temp"), "C:" + bad + "temp");
  EXPECT_EQ(TextWithOneBad("C:\\"), "C:" + bad);
}

TEST(IsoText, ReplacesEachBadEscape) {
  const std::string bad = kBad;
  struct Case {
    std::string body;
    std::string text;
    std::vector<std::ptrdiff_t> offsets;
  };
  const Case kCases[] = {
      {"a\\b", "a" + bad + "b", {1}},
      {"\\x\\E4", bad + "x" + bad + "E4", {0, 2}},
      {"\\N\\", bad + "N" + bad, {0, 2}},
      {"\\F\\x", bad + "F" + bad + "x", {0, 2}},
      {"\\Sx", bad + "Sx", {0}},
      {"\\S\\\x7Fx", bad + "\x7Fx", {0}},
      {"\\PJ\\x", bad + "PJ" + bad + "x", {0, 3}},
      {"\\X\\4Gx", bad + "Gx", {0}},
      {"\\X\\Gx", bad + "Gx", {0}},
      {"a\\X\\00b", "a" + bad + "b", {1}},
      {"a\\X0\\b", "a" + bad + "b", {1}},
      {"\\X3\\0041\\X0\\", bad + "X3" + bad + "0041" + bad, {0, 3, 8}},
  };
  for (const Case& row : kCases) {
    const Decoded decoded = Decode(row.body + "',$");
    EXPECT_EQ(decoded.text, row.text) << row.body;
    EXPECT_EQ(decoded.rest, ",$") << row.body;
    EXPECT_EQ(decoded.bad, row.offsets) << row.body;
  }
}

TEST(IsoText, KeepsTheGoodGroupsOfABadEscape) {
  const std::string bad = kBad;
  EXPECT_EQ(TextWithOneBad("a\\X2\\00E400E"), "a\xC3\xA4" + bad);
  EXPECT_EQ(TextWithOneBad("a\\X2\\00E400E\\X0\\b"), "a\xC3\xA4" + bad + "b");
  EXPECT_EQ(TextWithOneBad("a\\X2\\00E4zz\\X0\\b"), "a\xC3\xA4" + bad + "b");
  EXPECT_EQ(TextWithOneBad("a\\X4\\000000E400\\X0\\b"), "a\xC3\xA4" + bad + "b");
  EXPECT_EQ(TextWithOneBad("a\\X2\\0000\\X0\\b"), "a" + bad + "b");
  EXPECT_EQ(TextWithOneBad("a\\X2\\D83C\\X0\\b"), "a" + bad + "b");
  EXPECT_EQ(TextWithOneBad("a\\X2\\DFE0\\X0\\b"), "a" + bad + "b");
  EXPECT_EQ(TextWithOneBad("a\\X2\\D83C00E4\\X0\\b"), "a" + bad +
                                                          "\xC3\xA4"
                                                          "b");
  EXPECT_EQ(TextWithOneBad("a\\X4\\00110000\\X0\\b"), "a" + bad + "b");
  EXPECT_EQ(TextWithOneBad("a\\X4\\0000D83C\\X0\\b"), "a" + bad + "b");
}

TEST(IsoText, NeedsNoReplacementIfOnlyTheEndOfTheGroupsIsMissing) {
  EXPECT_EQ(TextWithOneBad("caf\\X2\\00E9"), "caf\xC3\xA9");
  EXPECT_EQ(TextWithOneBad("caf\\X2\\00E9 and more"), "caf\xC3\xA9 and more");
  const Decoded decoded = Decode("\\X2\\00E9, it''s \\X2\\00E4\\X0\\',$");
  EXPECT_EQ(decoded.text, "\xC3\xA9, it's \xC3\xA4");
  EXPECT_THAT(decoded.bad, ElementsAre(0));
}

TEST(IsoText, DistinguishesUtf8FromLatin1ByTheEntireString) {
  EXPECT_EQ(TextOf("T\xC3\xBCr"), "T\xC3\xBCr");
  EXPECT_EQ(TextOf("T\xFCr"), "T\xC3\xBCr");
  EXPECT_EQ(TextOf("T\xC3\xBCr \xFC"), "T\xC3\x83\xC2\xBCr \xC3\xBC");
  EXPECT_EQ(TextOf("\xFC''\\X2\\20AC\\X0\\"), "\xC3\xBC'\xE2\x82\xAC");
  EXPECT_EQ(TextOf("\\PE\\\xFC\\S\\P"), "\xC3\xBC\xD0\xB0");
}

TEST(IsoText, ReportsABadEscapeOfALatin1StringOnce) {
  EXPECT_EQ(TextWithOneBad("\xFC\\q"), std::string("\xC3\xBC") + kBad + "q");
}

TEST(IsoText, IsWrittenWithTheEscapesOfTheStandard) {
  EXPECT_EQ(Encode(""), "''");
  EXPECT_EQ(Encode("it's C:\\"), "'it''s C:\\\\'");
  EXPECT_EQ(Encode("T\xC3\xBCr"), "'T\\X2\\00FC\\X0\\r'");
  EXPECT_EQ(Encode("\xC3\xA4\xE2\x82\xACx"), "'\\X2\\00E420AC\\X0\\x'");
  EXPECT_EQ(Encode("\xF0\x9F\x8F\xA0"), "'\\X4\\0001F3E0\\X0\\'");
  EXPECT_EQ(Encode("\xC3\xA4\xF0\x9F\x8F\xA0\xC3\xA4"),
            "'\\X2\\00E4\\X0\\\\X4\\0001F3E0\\X0\\\\X2\\00E4\\X0\\'");
  EXPECT_EQ(Encode("a\tb\n\x7F"), "'a\\X\\09b\\X\\0A\\X\\7F'");
}

TEST(IsoText, IsWrittenFromLatin1IfItIsNotUtf8) {
  EXPECT_EQ(Encode("T\xFCr"), "'T\\X2\\00FC\\X0\\r'");
}

char32_t RandomScalarValue(std::mt19937& random) {
  // Each length of UTF-8, and each character with a meaning, is about equally frequent.
  constexpr char kMarks[] = "'\\SXP024AE,) \t";
  if (random() % 2 == 0) return static_cast<char32_t>(kMarks[random() % (sizeof kMarks - 1)]);
  const std::uint32_t limits[] = {0x80, 0x800, 0x10000, 0x110000};
  char32_t code = 0;
  while (code == 0 || !IsScalarValue(code)) code = random() % limits[random() % 4];
  return code;
}

TEST(IsoText, ReadsBackWhatItWrites) {
  std::mt19937 random(20);
  for (int round = 0; round < 20000; ++round) {
    std::string text;
    for (std::size_t length = random() % 30; length > 0; --length) {
      AppendUtf8(text, RandomScalarValue(random));
    }
    ASSERT_EQ(TextOf(BodyOf(Encode(text))), text);
  }
}

TEST(IsoText, ReadsBackEveryCharacterButZero) {
  std::string text;
  for (char32_t code = 1; code <= 0x10FFFF; ++code) {
    if (IsScalarValue(code)) AppendUtf8(text, code);
  }
  EXPECT_TRUE(TextOf(BodyOf(Encode(text))) == text);
}

// If each of these escapes were searched to the end of the string, this test would take hours.
TEST(IsoText, FindsTheEndOfAnEscapeInLinearTime) {
  std::string body;
  for (int i = 0; i < 500000; ++i) body += "\\X2\\00E4\\S\\'''";
  const Decoded decoded = Decode(body + "',$");
  EXPECT_EQ(decoded.bad.size(), 500000U);
  EXPECT_EQ(decoded.rest, ",$");
}

}  // namespace
}  // namespace KelIFC
