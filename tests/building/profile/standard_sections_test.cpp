#include "kelifc/building/profile/standard_sections.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "kelifc/building/profile/parameter_table.h"
#include "kelifc/building/profile/section_moments.h"

namespace KelIFC::building {
namespace {

using enum ProfileParameter;

TEST(StandardSections, HaveThePublishedArea) {
  for (const StandardSection& section : StandardSections()) {
    const auto region = ShapeRegion(section.shape, section.parameters);
    ASSERT_TRUE(region) << section.designation;
    const double area = PropertiesOf(*region).area;
    const bool isTapered = ValueOf(section.parameters, kSlope) != 0.0;
    const bool isRough = isTapered || section.shape == ProfileShape::kU;
    const double tolerance = isRough ? 0.015 : 0.01;
    EXPECT_NEAR(area / section.area, 1.0, tolerance) << section.designation;
  }
}

TEST(StandardSections, HaveDistinctDesignations) {
  std::set<std::string> designations;
  for (const StandardSection& section : StandardSections()) {
    EXPECT_TRUE(designations.insert(section.designation).second) << section.designation;
  }
  for (const char* designation :
       {"HEA100", "HEB220", "HEM1000", "IPE80", "IPE600", "IPN300", "UPN400", "UPE330",
        "L100x100x10", "L150x75x9", "SHS100x100x6.3", "RHS200x100x8", "CHS114.3x5"}) {
    EXPECT_NE(FindStandardSection(designation), nullptr) << designation;
  }
}

TEST(StandardSections, AreFoundByTheirSizes) {
  for (const StandardSection& section : StandardSections()) {
    const StandardSection* found = FindStandardSection(section.shape, section.parameters);
    ASSERT_NE(found, nullptr) << section.designation;
    EXPECT_EQ(found->designation, section.designation);
  }
}

TEST(StandardSections, AllowHalfAMillimetreAndOneMillimetreOfTheFillet) {
  ProfileParameters sizes = FindStandardSection("HEB220")->parameters;
  ValueOf(sizes, kH) += 0.00045;
  ValueOf(sizes, kR) += 0.0009;
  ASSERT_NE(FindStandardSection(ProfileShape::kI, sizes), nullptr);
  ValueOf(sizes, kH) += 0.0001;
  EXPECT_EQ(FindStandardSection(ProfileShape::kI, sizes), nullptr);
  ValueOf(sizes, kH) -= 0.0001;
  ValueOf(sizes, kR) += 0.0002;
  EXPECT_EQ(FindStandardSection(ProfileShape::kI, sizes), nullptr);
}

TEST(StandardSections, AllowLessWithoutFillets) {
  ProfileParameters sizes = FindStandardSection("IPE300")->parameters;
  ValueOf(sizes, kR) = 0.0;
  ValueOf(sizes, kB) += 0.00025;
  ASSERT_NE(FindStandardSection(ProfileShape::kI, sizes), nullptr);
  EXPECT_EQ(FindStandardSection(ProfileShape::kI, sizes)->designation, "IPE300");
  ValueOf(sizes, kB) += 0.0001;
  EXPECT_EQ(FindStandardSection(ProfileShape::kI, sizes), nullptr);
}

TEST(StandardSections, TellWallsOfSixMillimetresFromThoseOfSixPointThree) {
  ProfileParameters sizes = FindStandardSection("CHS114.3x6.3")->parameters;
  EXPECT_NE(FindStandardSection(ProfileShape::kHollowCircle, sizes), nullptr);
  ValueOf(sizes, kT) = 0.006;
  EXPECT_EQ(FindStandardSection(ProfileShape::kHollowCircle, sizes), nullptr);
}

TEST(StandardSections, ExchangeTheLegsOfAnAngle) {
  ProfileParameters sizes = FindStandardSection("L150x100x12")->parameters;
  std::swap(ValueOf(sizes, kH), ValueOf(sizes, kB));
  ASSERT_NE(FindStandardSection(ProfileShape::kL, sizes), nullptr);
  EXPECT_EQ(FindStandardSection(ProfileShape::kL, sizes)->designation, "L150x100x12");
}

TEST(StandardSections, AnIWithEqualFlangesIsSymmetric) {
  ProfileParameters sizes = FindStandardSection("IPE300")->parameters;
  ValueOf(sizes, kB1) = ValueOf(sizes, kB);
  ValueOf(sizes, kTf1) = ValueOf(sizes, kTf);
  ValueOf(sizes, kR1) = ValueOf(sizes, kR);
  ASSERT_NE(FindStandardSection(ProfileShape::kAsymmetricI, sizes), nullptr);
  ValueOf(sizes, kTf1) += 0.001;
  EXPECT_EQ(FindStandardSection(ProfileShape::kAsymmetricI, sizes), nullptr);
}

}  // namespace
}  // namespace KelIFC::building
