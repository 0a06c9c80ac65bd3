#include "kelifc/core/enum_text.h"

#include <gtest/gtest.h>

#include <sstream>

namespace KelIFC {
namespace {

enum Colour : std::int32_t { kNone = 0, kRed = 1, kBlue = 5, kGreen = 4 };
constexpr EnumTextRow kColours[] = {
    {"RED", kRed}, {"BLUE", kBlue}, {"GREEN", kGreen}, {"CRIMSON", kRed}, {"BLUE", kGreen}};

std::string Written(Colour colour) {
  std::ostringstream out;
  WriteEnumValue(out, colour, kColours);
  return out.str();
}

TEST(EnumText, StoresTheValueOfATextAndReturnsTheNextCursor) {
  Colour colour = kNone;
  EXPECT_STREQ(ParseEnumValue(colour, " .GREEN. ,5", kNone, kColours), "5");
  EXPECT_EQ(colour, kGreen);
}

TEST(EnumText, UsesTheFirstRowIfATextOccursTwice) {
  Colour colour = kNone;
  ParseEnumValue(colour, ".BLUE.", kNone, kColours);
  EXPECT_EQ(colour, kBlue);
}

TEST(EnumText, StoresTheDefaultForATextThatTheTableDoesNotHave) {
  for (const char* text : {".green.", ".GREE.", ".GREENS.", "$", "*", "GREEN", "..", ""}) {
    Colour colour = kRed;
    ParseEnumValue(colour, text, kBlue, kColours);
    EXPECT_EQ(colour, kBlue) << text;
  }
  Colour colour = kRed;
  EXPECT_EQ(ParseEnumValue(colour, nullptr, kBlue, kColours), nullptr);
  EXPECT_EQ(colour, kBlue);
}

TEST(EnumText, MovesTheCursorAsAnEnumerationDoes) {
  Colour colour = kRed;
  EXPECT_STREQ(ParseEnumValue(colour, "$,5", kNone, kColours), "5");
  EXPECT_STREQ(ParseEnumValue(colour, ",.RED.", kNone, kColours), ",.RED.");
}

TEST(EnumText, WritesTheFirstTextOfAValue) {
  EXPECT_EQ(Written(kRed), ".RED.");
  EXPECT_EQ(Written(kGreen), ".GREEN.");
}

TEST(EnumText, WritesNothingForAValueWithoutText) { EXPECT_EQ(Written(kNone), "$"); }

}  // namespace
}  // namespace KelIFC
