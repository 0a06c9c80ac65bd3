#include "kelifc/geo/section_name.h"

#include <gtest/gtest.h>

#include <clocale>
#include <limits>

#include "kelifc/geo/section.h"

namespace KelIFC {
namespace {

TEST(SectionNameValue, IsInCentimetresToOneDecimal) {
  EXPECT_DOUBLE_EQ(SectionNameValue(1.23456), 123.5);
  EXPECT_DOUBLE_EQ(SectionNameValue(0.3), 30.0);
  EXPECT_DOUBLE_EQ(SectionNameValue(0.0004), 0.0);
  EXPECT_DOUBLE_EQ(SectionNameValue(0.0006), 0.1);
}

TEST(SectionNameValue, RoundsAwayFromZeroOnBothSidesOfIt) {
  EXPECT_DOUBLE_EQ(SectionNameValue(-1.23456), -123.5);
  EXPECT_DOUBLE_EQ(SectionNameValue(-0.0006), -0.1);
}

TEST(SectionName, ContainsTheSizes) {
  EXPECT_EQ(SectionName(SectionSizes(SECTION_R, 0.3, 0.5)), "IFC_R_30x50");
  EXPECT_EQ(SectionName(SectionSizes(SECTION_C, 0.1)), "IFC_C_10");
  EXPECT_EQ(SectionName(SectionSizes(SECTION_THICK, 1.23456)), "IFC_H_123.5");
}

TEST(SectionName, OmitsTheFlangeOfAT) {
  EXPECT_EQ(SectionName(SectionSizes(SECTION_T, 0.25, 0.6, 1.2, 0.15)), "IFC_T_25x60");
}

TEST(SectionName, IsEmptyForAKindWithoutSizes) {
  EXPECT_EQ(SectionName(SectionSizes(SECTION_NONE)), "");
}

TEST(SectionName, HasSixDigitsAtMost) {
  EXPECT_EQ(SectionName(SectionSizes(SECTION_C, 12345.6789)), "IFC_C_1.23457e+06");
  EXPECT_EQ(SectionName(SectionSizes(SECTION_C, 1234.5678)), "IFC_C_123457");
}

TEST(SectionName, ContainsInfiniteZeroAndNegativeSizes) {
  constexpr double kInfinite = std::numeric_limits<double>::infinity();
  EXPECT_EQ(SectionName(SectionSizes(SECTION_C, kInfinite)), "IFC_C_inf");
  EXPECT_EQ(SectionName(SectionSizes(SECTION_C, -kInfinite)), "IFC_C_-inf");
  EXPECT_EQ(SectionName(SectionSizes(SECTION_C, 0.0)), "IFC_C_0");
  EXPECT_EQ(SectionName(SectionSizes(SECTION_C, -0.25)), "IFC_C_-25");
}

TEST(SectionName, IgnoresTheLocale) {
  const std::string before = std::setlocale(LC_NUMERIC, nullptr);
  bool isSet = false;
  for (const char* locale : {"de_DE.UTF-8", "de_DE.utf8", "de_DE"}) {
    isSet = isSet || std::setlocale(LC_NUMERIC, locale) != nullptr;
  }
  if (!isSet) GTEST_SKIP() << "no locale with a decimal comma";
  EXPECT_EQ(SectionName(SectionSizes(SECTION_THICK, 1.23456)), "IFC_H_123.5");
  std::setlocale(LC_NUMERIC, before.c_str());
}

TEST(ProfileName, ContainsTheNumberOfPointsAndTheSizeOfTheBox) {
  EXPECT_EQ(ProfileName(6, {Point2(1.0, 2.0), Point2(1.4, 2.3)}), "IFC_N6_40x30");
  EXPECT_EQ(ProfileName(0, {}), "IFC_N0_0x0");
}

}  // namespace
}  // namespace KelIFC
