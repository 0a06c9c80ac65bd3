#include "kelifc/geo/reading/profile_section.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <utility>

#include "kelifc/geo/column.h"
#include "kelifc/geo/section_kind.h"
#include "kelifc/geo/sections.h"

#include "tests/geo/host.h"

namespace KelIFC {
namespace {

using Sizes = std::initializer_list<std::pair<ProfileParameter, double>>;

BuildingProfile ProfileOf(ProfileShape shape, const Sizes& sizes, const Outline& outline) {
  BuildingProfile profile;
  profile.shape = shape;
  for (const auto& [parameter, size] : sizes) {
    profile.parameters[static_cast<std::size_t>(parameter)] = size;
  }
  profile.outline = outline;
  return profile;
}

/// A T of 200 by 300 mm with a web of 20 mm and a flange of 40 mm. Its centroid is 104 mm below
/// the top; `up` is -1 for a T with the flange at the bottom.
BuildingProfile Tee(double up) {
  Outline outline;
  for (const Point2& corner :
       {Point2(-0.1, 0.104), Point2(-0.1, 0.064), Point2(-0.01, 0.064), Point2(-0.01, -0.196),
        Point2(0.01, -0.196), Point2(0.01, 0.064), Point2(0.1, 0.064), Point2(0.1, 0.104)}) {
    outline.push_back({corner.x, up * corner.y});
  }
  return ProfileOf(ProfileShape::kT,
                   {{ProfileParameter::kH, 0.3},
                    {ProfileParameter::kB, 0.2},
                    {ProfileParameter::kTw, 0.02},
                    {ProfileParameter::kTf, 0.04}},
                   outline);
}

class ProfileSection : public HostTest {
 protected:
  ComPtr<IGeoSection> SectionOf(const BuildingProfile& profile) {
    auto& made = static_cast<CoGeoStructure&>(*structure);
    auto& element = static_cast<CoGeoColumn&>(*column);
    EXPECT_EQ(EnsureProfileSection(made, element, profile), S_OK);
    const auto sections = GetObject(*structure, &IGeoStructure::get_Sections);
    return static_cast<CoGeoSections&>(*sections).Items()[element.sectionIndex];
  }

  void TearDown() override {
    column.Reset();
    structure.Reset();
    HostTest::TearDown();
  }

  ComPtr<IGeoStructure> structure = CreateOwn<CoGeoStructure>();
  ComPtr<IGeoColumn> column = CreateOwn<CoGeoColumn>();
};

TEST_F(ProfileSection, IsARectangleWithTheWidthAlongY) {
  const Sizes sizes = {{ProfileParameter::kH, 0.5}, {ProfileParameter::kB, 0.3}};
  const auto upright =
      SectionOf(ProfileOf(ProfileShape::kRectangle, sizes,
                          {{-0.15, -0.25}, {0.15, -0.25}, {0.15, 0.25}, {-0.15, 0.25}}));
  EXPECT_EQ(GetText(*upright, &IGeoSection::get_Name), L"IFC_R_30x50");
  const auto lying =
      SectionOf(ProfileOf(ProfileShape::kRectangle, sizes,
                          {{-0.25, -0.15}, {0.25, -0.15}, {0.25, 0.15}, {-0.25, 0.15}}));
  EXPECT_EQ(GetText(*lying, &IGeoSection::get_Name), L"IFC_R_50x30");
}

TEST_F(ProfileSection, IsAPolygonForARectangleThatLiesAskew) {
  const auto askew = SectionOf(ProfileOf(
      ProfileShape::kRectangle, {{ProfileParameter::kH, 0.2}, {ProfileParameter::kB, 0.2}},
      {{-0.1414, 0.0}, {0.0, -0.1414}, {0.1414, 0.0}, {0.0, 0.1414}}));
  EXPECT_EQ(GetValue(*askew, &IGeoSection::get_Kind), SECTION_PROFILE);
}

TEST_F(ProfileSection, IsACircle) {
  const auto section =
      SectionOf(ProfileOf(ProfileShape::kCircle, {{ProfileParameter::kD, 0.4}}, {}));
  EXPECT_EQ(GetText(*section, &IGeoSection::get_Name), L"IFC_C_40");
}

TEST_F(ProfileSection, IsATeeWithItsSizesIfTheFlangeIsOnTop) {
  const auto section = SectionOf(Tee(1.0)).As<IGeoSectionT>();
  ASSERT_TRUE(section);
  EXPECT_EQ(GetValue(*section, &IGeoSectionT::get_Height), 0.3);
  EXPECT_EQ(GetValue(*section, &IGeoSectionT::get_FlangeWidth), 0.2);
  EXPECT_EQ(GetValue(*section, &IGeoSectionT::get_FlangeThickness), 0.04);
  EXPECT_EQ(GetValue(*section, &IGeoSectionT::get_WebWidth), 0.02);
}

TEST_F(ProfileSection, IsAPolygonForATeeWithTheFlangeBelow) {
  const auto section = SectionOf(Tee(-1.0));
  EXPECT_EQ(GetValue(*section, &IGeoSection::get_Kind), SECTION_PROFILE);
  EXPECT_EQ(GetText(*section, &IGeoSection::get_Name), L"IFC_N8_20x30");
}

TEST_F(ProfileSection, IsAPolygonForAnyOtherShape) {
  const auto section =
      SectionOf(ProfileOf(ProfileShape::kArbitrary, {}, {{-0.1, -0.1}, {0.2, -0.1}, {-0.1, 0.2}}));
  EXPECT_EQ(GetValue(*section, &IGeoSection::get_Kind), SECTION_PROFILE);
  EXPECT_EQ(GetText(*section, &IGeoSection::get_Name), L"IFC_N3_30x30");
}

}  // namespace
}  // namespace KelIFC
