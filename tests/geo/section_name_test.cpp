#include "kelifc/geo/section_name.h"

#include <gtest/gtest.h>

#include <limits>

#include "kelifc/geo/section.h"

namespace KelIFC {
namespace {

TEST(SectionNameValue, IsInCentimetresWithOneDecimal) {
  EXPECT_NEAR(SectionNameValue(1.23456), 123.5, 1e-9);
  EXPECT_NEAR(SectionNameValue(0.3), 30, 1e-9);
  EXPECT_NEAR(SectionNameValue(0.3004), 30, 1e-9);
  EXPECT_NEAR(SectionNameValue(0.3006), 30.1, 1e-9);
  EXPECT_EQ(SectionNameValue(0), 0);
}

TEST(SectionNameValue, RoundsNegativeLengthsAwayFromZeroToo) {
  EXPECT_NEAR(SectionNameValue(-1.23456), -123.5, 1e-9);
  EXPECT_NEAR(SectionNameValue(-0.3), -30, 1e-9);
}

TEST(SectionName, TellsKindAndSizes) {
  EXPECT_EQ(SectionName(SectionSizes(SECTION_R, 0.3, 0.5)), "IFC_R_30x50");
  EXPECT_EQ(SectionName(SectionSizes(SECTION_C, 0.1)), "IFC_C_10");
  EXPECT_EQ(SectionName(SectionSizes(SECTION_T, 0.2, 0.5, 0.6, 0.1)), "IFC_T_20x50");
  EXPECT_EQ(SectionName(SectionSizes(SECTION_THICK, 1.23456)), "IFC_H_123.5");
}

TEST(SectionName, HasSixDigitsAtMost) {
  EXPECT_EQ(SectionName(SectionSizes(SECTION_C, 123456.789)), "IFC_C_1.23457e+07");
  EXPECT_EQ(SectionName(SectionSizes(SECTION_C, 0.00001)), "IFC_C_0");
}

TEST(SectionName, SurvivesSizesThatAreNoNumbers) {
  EXPECT_EQ(SectionName(SectionSizes(SECTION_C, std::numeric_limits<double>::infinity())),
            "IFC_C_inf");
}

TEST(ProfileName, TellsPointsAndExtents) {
  EXPECT_EQ(ProfileName(6, {{1, 1}, {1.4, 1.3}}), "IFC_N6_40x30");
  EXPECT_EQ(ProfileName(0, {}), "IFC_N0_0x0");
}

}  // namespace
}  // namespace KelIFC
