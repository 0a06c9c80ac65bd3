#include "kelifc/geo/section.h"

#include <gtest/gtest.h>

#include "tests/geo/host.h"

namespace KelIFC {
namespace {

class Section : public HostTest {};

/// Checks that two operations read and write one field, which is 0 in a new object.
template <class Interface>
void ExpectField(Interface& section, HRESULT (Interface::*get)(double*),
                 HRESULT (Interface::*put)(double), double value) {
  EXPECT_EQ(GetValue(section, get), 0.0);
  EXPECT_EQ((section.*put)(value), S_OK);
  EXPECT_EQ(GetValue(section, get), value);
  EXPECT_EQ((section.*get)(nullptr), E_POINTER);
}

TEST(SectionKind, HasTheNumbersThatHostsRead) {
  EXPECT_EQ(static_cast<int>(SECTION_NONE), 0);
  EXPECT_EQ(static_cast<int>(SECTION_R), 1);
  EXPECT_EQ(static_cast<int>(SECTION_C), 2);
  EXPECT_EQ(static_cast<int>(SECTION_T), 3);
  EXPECT_EQ(static_cast<int>(SECTION_PROFILE), 8);
  EXPECT_EQ(static_cast<int>(SECTION_THICK), 9);
}

TEST_F(Section, HasWidthAndHeightAsARectangle) {
  const auto section = CreateOwn<CoGeoSectionR>();
  ExpectField(*section, &IGeoSectionR::get_Width, &IGeoSectionR::put_Width, 0.3);
  ExpectField(*section, &IGeoSectionR::get_Height, &IGeoSectionR::put_Height, 0.5);
  const auto& object = static_cast<CoGeoSectionR&>(*section);
  EXPECT_EQ(object.a, 0.3);
  EXPECT_EQ(object.b, 0.5);
}

TEST_F(Section, HasADiameterAsACircle) {
  const auto section = CreateOwn<CoGeoSectionC>();
  ExpectField(*section, &IGeoSectionC::get_Diameter, &IGeoSectionC::put_Diameter, 0.3);
}

TEST_F(Section, HasFourSizesAsAT) {
  const auto section = CreateOwn<CoGeoSectionT>();
  using T = IGeoSectionT;
  ExpectField(*section, &T::get_Height, &T::put_Height, 0.5);
  ExpectField(*section, &T::get_FlangeThickness, &T::put_FlangeThickness, 0.1);
  ExpectField(*section, &T::get_WebWidth, &T::put_WebWidth, 0.2);
  ExpectField(*section, &T::get_FlangeWidth, &T::put_FlangeWidth, 0.6);
  const auto& object = static_cast<CoGeoSectionT&>(*section);
  EXPECT_EQ(object.a, 0.2);
  EXPECT_EQ(object.b, 0.5);
  EXPECT_EQ(object.c, 0.6);
  EXPECT_EQ(object.d, 0.1);
}

TEST_F(Section, HasAThickness) {
  const auto section = CreateOwn<CoGeoSectionThick>();
  ExpectField(*section, &IGeoSectionThick::get_Thickness, &IGeoSectionThick::put_Thickness, 0.2);
}

TEST_F(Section, ReservesItsOperationsAsAPolygon) {
  const auto section = CreateOwn<CoGeoSectionProfile>();
  EXPECT_EQ(section->Reserved1(nullptr), E_NOTIMPL);
  EXPECT_EQ(section->Reserved2(nullptr), E_NOTIMPL);
  EXPECT_EQ(section->Reserved3(nullptr), E_NOTIMPL);
}

TEST_F(Section, HasANameAndAKind) {
  for (const CLSID& clsid : {CLSID_CoGeoSectionR, CLSID_CoGeoSectionC, CLSID_CoGeoSectionT,
                             CLSID_CoGeoSectionProfile, CLSID_CoGeoSectionThick}) {
    const auto section = Create<IGeoSection>(clsid);
    EXPECT_EQ(GetText(*section, &IGeoSection::get_Name), L"");
    EXPECT_EQ(GetValue(*section, &IGeoSection::get_Kind), SECTION_NONE);
    EXPECT_EQ(section->put_Name(Bstr(L"Stütze").Get()), S_OK);
    EXPECT_EQ(GetText(*section, &IGeoSection::get_Name), L"Stütze");
    EXPECT_EQ(section->put_Name(nullptr), S_OK);
    EXPECT_EQ(GetText(*section, &IGeoSection::get_Name), L"");
    EXPECT_EQ(section->get_Name(nullptr), E_POINTER);
    EXPECT_EQ(section->get_Kind(nullptr), E_POINTER);
  }
}

}  // namespace
}  // namespace KelIFC
