#include "kelifc/core/text/ascii.h"

#include <gtest/gtest.h>

#include <cctype>

namespace {

namespace ascii = KelIFC::ascii;

TEST(Ascii, ClassesAreThoseOfTheCLocaleForEachByte) {
  for (int byte = 0; byte < 256; ++byte) {
    const char c = static_cast<char>(byte);
    const bool isAscii = byte < 128;
    EXPECT_EQ(ascii::IsDigit(c), isAscii && std::isdigit(byte) != 0) << byte;
    EXPECT_EQ(ascii::IsUpperCase(c), isAscii && std::isupper(byte) != 0) << byte;
    EXPECT_EQ(ascii::IsLowerCase(c), isAscii && std::islower(byte) != 0) << byte;
    EXPECT_EQ(ascii::IsLetter(c), isAscii && std::isalpha(byte) != 0) << byte;
  }
}

TEST(Ascii, CasesChangeForLettersOnly) {
  for (int byte = 0; byte < 256; ++byte) {
    const char c = static_cast<char>(byte);
    EXPECT_EQ(ascii::ToUpperCase(c), ascii::IsLowerCase(c) ? static_cast<char>(byte - 32) : c);
    EXPECT_EQ(ascii::ToLowerCase(c), ascii::IsUpperCase(c) ? static_cast<char>(byte + 32) : c);
  }
  EXPECT_EQ(ascii::ToUpperCase(std::string_view("IfcWall\xE4_1")), "IFCWALL\xE4_1");
  EXPECT_EQ(ascii::ToLowerCase(std::string_view("IfcWall\xC4_1")), "ifcwall\xC4_1");
}

TEST(Ascii, SameTextsMayDifferInTheirCaseOnly) {
  EXPECT_TRUE(ascii::IsSameText("IfcWall", "IFCWALL"));
  EXPECT_TRUE(ascii::IsSameText("", ""));
  EXPECT_FALSE(ascii::IsSameText("IfcWall", "IfcWalls"));
  EXPECT_FALSE(ascii::IsSameText("IfcWalls", "IfcWall"));
  EXPECT_FALSE(ascii::IsSameText("[", "{"));  // 32 apart, but no letters
}

TEST(Ascii, TheOrderOfTextsDoesNotDependOnTheirCase) {
  EXPECT_TRUE(ascii::IsBefore("ifcbeam", "IFCWALL"));
  EXPECT_TRUE(ascii::IsBefore("IFCBEAM", "ifcwall"));
  EXPECT_TRUE(ascii::IsBefore("IfcWall", "ifcwalls"));
  EXPECT_FALSE(ascii::IsBefore("IfcWall", "IFCWALL"));
  EXPECT_TRUE(ascii::IsBefore("ifcwall", "IFC_"));  // the underscore follows the upper case
}

}  // namespace
