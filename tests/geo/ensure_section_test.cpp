#include <gtest/gtest.h>

#include "kelifc/geo/section.h"
#include "kelifc/geo/sections.h"
#include "kelifc/geo/structure.h"

#include "tests/geo/elements.h"
#include "tests/geo/failing_factory.h"
#include "tests/geo/host.h"

namespace KelIFC {
namespace {

/// Gives sections of a structure to elements.
class EnsuredSection : public HostTest {
 protected:
  void SetUp() override {
    structure = CreateOwn<CoGeoStructure>();
    element = CreateOwn<CoGeoColumn>();
  }
  void TearDown() override {
    element.Reset();
    structure.Reset();
    HostTest::TearDown();
  }

  CoGeoStructure& Structure() { return OwnOf<CoGeoStructure>(structure); }
  CoGeoObject& Element() { return OwnOf<CoGeoColumn>(element); }

  LONG Count() { return CountOf(*GetObject(*structure, &IGeoStructure::get_Sections)); }

  ComPtr<IGeoSection> SectionAt(LONG index) {
    ComPtr<IGeoSection> section;
    EXPECT_EQ(
        GetObject(*structure, &IGeoStructure::get_Sections)->ItemByIndex(index, section.Put()),
        S_OK);
    return section;
  }

  std::wstring NameAt(LONG index) { return GetText(*SectionAt(index), &IGeoSection::get_Name); }

  ComPtr<IGeoStructure> structure;
  ComPtr<IGeoColumn> element;
};

TEST_F(EnsuredSection, IsSharedByDiametersWithinAThousandth) {
  EXPECT_EQ(Structure().EnsureSectionC(Element(), 0.3), S_OK);
  EXPECT_EQ(Element().sectionIndex, 0u);
  EXPECT_EQ(Structure().EnsureSectionC(Element(), 0.3004), S_OK);
  EXPECT_EQ(Element().sectionIndex, 0u);
  EXPECT_EQ(Structure().EnsureSectionC(Element(), 0.301), S_OK);
  EXPECT_EQ(Element().sectionIndex, 1u);
  EXPECT_EQ(Count(), 2);
}

TEST_F(EnsuredSection, OfATeeIsNewForAnotherFlangeWithTheSameName) {
  EXPECT_EQ(Structure().EnsureSectionT(Element(), 0.2, 0.5, 0.6, 0.1), S_OK);
  EXPECT_EQ(Structure().EnsureSectionT(Element(), 0.2, 0.5, 0.6, 0.2), S_OK);
  EXPECT_EQ(Count(), 2);
  EXPECT_EQ(NameAt(1), L"IFC_T_20x50");
  EXPECT_EQ(NameAt(2), L"IFC_T_20x50");
}

TEST_F(EnsuredSection, HasItsKindAndSizes) {
  Structure().EnsureSectionR(Element(), 0.3, 0.5);
  Structure().EnsureSectionC(Element(), 0.1);
  Structure().EnsureSectionT(Element(), 0.2, 0.5, 0.6, 0.1);
  Structure().EnsureSectionThick(Element(), 0.24);
  const LONG kinds[] = {SECTION_R, SECTION_C, SECTION_T, SECTION_THICK};
  for (LONG i = 1; i <= 4; ++i) EXPECT_EQ(Get(*SectionAt(i), &IGeoSection::get_Kind), kinds[i - 1]);
  const auto rectangle = SectionAt(1).As<IGeoSectionR>();
  EXPECT_EQ(Get(*rectangle, &IGeoSectionR::get_Width), 0.3);
  EXPECT_EQ(Get(*rectangle, &IGeoSectionR::get_Height), 0.5);
  EXPECT_EQ(Get(*SectionAt(2).As<IGeoSectionC>(), &IGeoSectionC::get_Diameter), 0.1);
  const auto tee = SectionAt(3).As<IGeoSectionT>();
  EXPECT_EQ(Get(*tee, &IGeoSectionT::get_WebWidth), 0.2);
  EXPECT_EQ(Get(*tee, &IGeoSectionT::get_Height), 0.5);
  EXPECT_EQ(Get(*tee, &IGeoSectionT::get_FlangeWidth), 0.6);
  EXPECT_EQ(Get(*tee, &IGeoSectionT::get_FlangeThickness), 0.1);
  EXPECT_EQ(Get(*SectionAt(4).As<IGeoSectionThick>(), &IGeoSectionThick::get_Thickness), 0.24);
}

TEST_F(EnsuredSection, OfAPolygonIsAlwaysNew) {
  Mvector<Point2> polygon;
  for (const Point2& point : {Point2(0, 0), Point2(0.4, 0), Point2(0.4, 0.2), Point2(0.2, 0.2),
                              Point2(0.2, 0.3), Point2(0, 0.3)}) {
    polygon.push_back(point);
  }
  EXPECT_EQ(Structure().AddSectionProfile(Element(), polygon), S_OK);
  EXPECT_EQ(Structure().AddSectionProfile(Element(), polygon), S_OK);
  EXPECT_EQ(Element().sectionIndex, 1u);
  EXPECT_EQ(NameAt(1), L"IFC_N6_40x30");
  EXPECT_EQ(NameAt(2), L"IFC_N6_40x30");
  EXPECT_EQ(Get(*SectionAt(1), &IGeoSection::get_Kind), SECTION_PROFILE);
}

TEST_F(EnsuredSection, FollowsTheSizesThatAHostSets) {
  Structure().EnsureSectionC(Element(), 0.3);
  EXPECT_EQ(SectionAt(1).As<IGeoSectionC>()->put_Diameter(0.5), S_OK);
  Structure().EnsureSectionC(Element(), 0.5);
  EXPECT_EQ(Element().sectionIndex, 0u);
  Structure().EnsureSectionC(Element(), 0.3);
  EXPECT_EQ(Element().sectionIndex, 1u);
}

TEST_F(EnsuredSection, DoesNotDependOnNames) {
  Structure().EnsureSectionC(Element(), 0.3);
  EXPECT_EQ(SectionAt(1)->put_Name(Bstr(L"mine").Get()), S_OK);
  Structure().EnsureSectionC(Element(), 0.3);
  EXPECT_EQ(Count(), 1);
}

TEST_F(EnsuredSection, LeavesTheElementWhenASectionCannotBeMade) {
  Structure().EnsureSectionC(Element(), 0.3);
  {
    const FailingClass failing(CLSID_CoGeoSectionC, 0, E_OUTOFMEMORY);
    EXPECT_EQ(Structure().EnsureSectionC(Element(), 0.5), E_OUTOFMEMORY);
    EXPECT_EQ(Structure().EnsureSectionC(Element(), 0.3), S_OK);
  }
  EXPECT_EQ(Element().sectionIndex, 0u);
  EXPECT_EQ(Count(), 1);
}

TEST_F(EnsuredSection, FailsWithoutACollection) {
  const FailingClass failing(CLSID_CoGeoSections, 0, E_OUTOFMEMORY);
  EXPECT_EQ(Structure().EnsureSectionR(Element(), 1, 1), E_OUTOFMEMORY);
  EXPECT_EQ(Structure().AddSectionProfile(Element(), {}), E_OUTOFMEMORY);
  EXPECT_EQ(Element().sectionIndex, CoGeoObject::kNoSection);
}

}  // namespace
}  // namespace KelIFC
