#include "kelifc/geo/building_profile.h"

#include <gtest/gtest.h>

#include <memory>

#include "tests/geo/host.h"

namespace KelIFC {
namespace {

class ProfileObject : public HostTest {
 protected:
  static ComPtr<IGeoProfile> Show(const BuildingProfile& profile) {
    auto object = CreateOwn<CoGeoProfile>();
    static_cast<CoGeoProfile&>(*object).SetProfile(std::make_shared<BuildingProfile>(profile));
    return object;
  }
};

TEST_F(ProfileObject, OfAHostHasNoOutlineAndNoSizes) {
  const auto profile = CreateOwn<CoGeoProfile>();
  EXPECT_EQ(GetText(*profile, &IGeoProfile::get_Name), L"");
  EXPECT_EQ(GetValue(*profile, &IGeoProfile::get_Area), 0.0);
  EXPECT_EQ(CountOf(*GetObject(*profile, &IGeoProfile::get_Outline)), 0);
}

TEST_F(ProfileObject, HasTheFactsOfTheProfile) {
  BuildingProfile made;
  made.name = "HEB300";
  made.shape = ProfileShape::kHollowRectangle;
  made.designation = "HEB220";
  made.nameContradicts = true;
  made.area = 0.01;
  made.iy = 0.002;
  made.iz = 0.003;
  made.iyz = -0.001;
  const auto profile = Show(made);
  EXPECT_EQ(GetText(*profile, &IGeoProfile::get_Name), L"HEB300");
  EXPECT_EQ(GetText(*profile, &IGeoProfile::get_Shape), L"hollow-rectangle");
  EXPECT_EQ(GetText(*profile, &IGeoProfile::get_Designation), L"HEB220");
  EXPECT_EQ(GetValue(*profile, &IGeoProfile::get_NameContradicts), VARIANT_TRUE);
  EXPECT_EQ(GetValue(*profile, &IGeoProfile::get_Area), 0.01);
  EXPECT_EQ(GetValue(*profile, &IGeoProfile::get_Iy), 0.002);
  EXPECT_EQ(GetValue(*profile, &IGeoProfile::get_Iz), 0.003);
  EXPECT_EQ(GetValue(*profile, &IGeoProfile::get_Iyz), -0.001);
}

TEST_F(ProfileObject, HasItsSizesByName) {
  BuildingProfile made;
  made.parameters[static_cast<std::size_t>(ProfileParameter::kTw)] = 0.0095;
  const auto profile = Show(made);
  double value = -1.0;
  EXPECT_EQ(profile->Parameter(Bstr(L"tw").Get(), &value), S_OK);
  EXPECT_EQ(value, 0.0095);
  EXPECT_EQ(profile->Parameter(Bstr(L"h").Get(), &value), S_OK);
  EXPECT_EQ(value, 0.0);
  value = 1.0;
  EXPECT_EQ(profile->Parameter(Bstr(L"none").Get(), &value), E_INVALIDARG);
  EXPECT_EQ(value, 0.0);
  EXPECT_EQ(profile->Parameter(nullptr, &value), E_INVALIDARG);
  EXPECT_EQ(profile->Parameter(Bstr(L"h").Get(), nullptr), E_POINTER);
}

TEST_F(ProfileObject, HasPointsWithYAndZOfTheProfile) {
  BuildingProfile made;
  made.outline = {{-0.1, -0.2}, {0.1, -0.2}, {0.1, 0.2}, {-0.1, 0.2}};
  made.holes = {{{0.0, 0.0}, {0.0, 0.1}, {0.05, 0.0}}};
  const auto profile = Show(made);
  const auto outline = GetObject(*profile, &IGeoProfile::get_Outline);
  ASSERT_EQ(CountOf(*outline), 4);
  ComPtr<IGeoPoint> point;
  ASSERT_EQ(outline->Item(2, point.Put()), S_OK);
  EXPECT_EQ(GetValue(*point, &IGeoPoint::get_X), 0.1);
  EXPECT_EQ(GetValue(*point, &IGeoPoint::get_Y), -0.2);
  EXPECT_EQ(GetValue(*point, &IGeoPoint::get_Z), 0.0);
  EXPECT_EQ(CountOf(*GetObject(*profile, &IGeoProfile::get_Holes)), 1);
}

}  // namespace
}  // namespace KelIFC
