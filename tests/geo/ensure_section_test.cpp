#include <gtest/gtest.h>

#include <initializer_list>
#include <limits>
#include <vector>

#include "kelifc/geo/section.h"
#include "kelifc/geo/sections.h"
#include "kelifc/geo/structure.h"
#include "kelifc/platform/com_object.h"

#include "tests/geo/elements.h"
#include "tests/geo/failing_factory.h"

namespace KelIFC {
namespace {

/// Has a structure and an element.
class EnsureSection : public HostTest {
 protected:
  void TearDown() override {
    element.Reset();
    structure.Reset();
    HostTest::TearDown();
  }

  CoGeoStructure& Structure() { return ObjectOf<CoGeoStructure>(structure); }
  CoGeoColumn& Element() { return ObjectOf<CoGeoColumn>(element); }
  ComPtr<IGeoSections> Sections() { return GetObject(*structure, &IGeoStructure::get_Sections); }

  std::uint64_t Circle(double diameter) {
    EXPECT_EQ(Structure().EnsureSectionC(Element(), diameter), S_OK);
    return Element().sectionIndex;
  }

  std::uint64_t Rectangle(double a, double b) {
    EXPECT_EQ(Structure().EnsureSectionR(Element(), a, b), S_OK);
    return Element().sectionIndex;
  }

  std::uint64_t T(double a, double b, double c, double d) {
    EXPECT_EQ(Structure().EnsureSectionT(Element(), a, b, c, d), S_OK);
    return Element().sectionIndex;
  }

  std::uint64_t Thick(double thickness) {
    EXPECT_EQ(Structure().EnsureSectionThick(Element(), thickness), S_OK);
    return Element().sectionIndex;
  }

  std::uint64_t Profile(std::initializer_list<Point2> points) {
    Mvector<Point2> polygon;
    for (const Point2& point : points) polygon.push_back(point);
    EXPECT_EQ(Structure().AddSectionProfile(Element(), polygon), S_OK);
    return Element().sectionIndex;
  }

  std::vector<std::wstring> Names() {
    const auto sections = Sections();
    std::vector<std::wstring> names;
    for (LONG i = 1; i <= CountOf(*sections); ++i) {
      names.push_back(GetText(*At<IGeoSection>(i), &IGeoSection::get_Name));
    }
    return names;
  }

  template <class Interface>
  ComPtr<Interface> At(LONG index) {
    ComPtr<IGeoSection> section;
    EXPECT_EQ(Sections()->ItemByIndex(index, section.Put()), S_OK);
    return section.As<Interface>();
  }

  ComPtr<IGeoStructure> structure = Create<IGeoStructure>(CLSID_CoGeoStructure);
  ComPtr<IGeoColumn> element = CreateOwn<CoGeoColumn>();
};

/// A section that fails to return its kind.
class UnkindSection : public CoGeoSectionC {
 public:
  HRESULT get_Kind(LONG*) override { return DISP_E_OVERFLOW; }

 protected:
  ~UnkindSection() = default;
};

const std::initializer_list<Point2> kHexagon = {{0.0, 0.0}, {0.4, 0.0}, {0.4, 0.1},
                                                {0.2, 0.1}, {0.2, 0.3}, {0.0, 0.3}};

TEST_F(EnsureSection, AddsSectionsInTheOrderOfTheCalls) {
  EXPECT_EQ(Rectangle(0.3, 0.5), 0U);
  EXPECT_EQ(Circle(0.1), 1U);
  EXPECT_EQ(T(0.25, 0.6, 1.2, 0.15), 2U);
  EXPECT_EQ(Profile(kHexagon), 3U);
  EXPECT_EQ(Thick(1.23456), 4U);
  EXPECT_EQ(Names(), (std::vector<std::wstring>{L"IFC_R_30x50", L"IFC_C_10", L"IFC_T_25x60",
                                                L"IFC_N6_40x30", L"IFC_H_123.5"}));
}

TEST_F(EnsureSection, SetsTheKindOfEachSection) {
  Rectangle(0.3, 0.5);
  Circle(0.1);
  T(0.25, 0.6, 1.2, 0.15);
  Profile(kHexagon);
  Thick(0.2);
  std::vector<LONG> kinds;
  for (LONG i = 1; i <= 5; ++i) {
    kinds.push_back(GetValue(*At<IGeoSection>(i), &IGeoSection::get_Kind));
  }
  EXPECT_EQ(kinds, (std::vector<LONG>{1, 2, 3, 8, 9}));
}

TEST_F(EnsureSection, SetsTheSizesOfEachSection) {
  Rectangle(0.3, 0.5);
  Circle(0.1);
  T(0.25, 0.6, 1.2, 0.15);
  Thick(0.2);
  EXPECT_EQ(GetValue(*At<IGeoSectionR>(1), &IGeoSectionR::get_Width), 0.3);
  EXPECT_EQ(GetValue(*At<IGeoSectionR>(1), &IGeoSectionR::get_Height), 0.5);
  EXPECT_EQ(GetValue(*At<IGeoSectionC>(2), &IGeoSectionC::get_Diameter), 0.1);
  EXPECT_EQ(GetValue(*At<IGeoSectionT>(3), &IGeoSectionT::get_WebWidth), 0.25);
  EXPECT_EQ(GetValue(*At<IGeoSectionT>(3), &IGeoSectionT::get_Height), 0.6);
  EXPECT_EQ(GetValue(*At<IGeoSectionT>(3), &IGeoSectionT::get_FlangeWidth), 1.2);
  EXPECT_EQ(GetValue(*At<IGeoSectionT>(3), &IGeoSectionT::get_FlangeThickness), 0.15);
  EXPECT_EQ(GetValue(*At<IGeoSectionThick>(4), &IGeoSectionThick::get_Thickness), 0.2);
}

TEST_F(EnsureSection, SharesASectionAmongSizesWithinAThousandth) {
  EXPECT_EQ(Circle(0.3000), 0U);
  EXPECT_EQ(Circle(0.3004), 0U);
  EXPECT_EQ(Circle(0.3010), 1U);
  EXPECT_EQ(CountOf(*Sections()), 2);
}

TEST_F(EnsureSection, UsesTheFirstSectionThatMatches) {
  Circle(0.3000);
  Circle(0.3015);
  EXPECT_EQ(Circle(0.3008), 0U);
}

TEST_F(EnsureSection, DistinguishesTsWithTheSameName) {
  EXPECT_EQ(T(0.25, 0.6, 1.2, 0.15), 0U);
  EXPECT_EQ(T(0.25, 0.6, 1.2, 0.20), 1U);
  EXPECT_EQ(T(0.25, 0.6, 1.3, 0.15), 2U);
  EXPECT_EQ(T(0.25, 0.6, 1.2, 0.20), 1U);
  EXPECT_EQ(Names(), std::vector<std::wstring>(3, L"IFC_T_25x60"));
}

TEST_F(EnsureSection, DistinguishesWidthFromHeight) {
  EXPECT_EQ(Rectangle(0.3, 0.5), 0U);
  EXPECT_EQ(Rectangle(0.5, 0.3), 1U);
}

TEST_F(EnsureSection, AddsASectionForEachPolygon) {
  EXPECT_EQ(Profile(kHexagon), 0U);
  EXPECT_EQ(Profile(kHexagon), 1U);
  EXPECT_EQ(Names(), std::vector<std::wstring>(2, L"IFC_N6_40x30"));
}

TEST_F(EnsureSection, NamesAPolygonWithoutPoints) {
  Profile({});
  EXPECT_EQ(Names(), std::vector<std::wstring>{L"IFC_N0_0x0"});
}

TEST_F(EnsureSection, NeverSharesSizesThatAreNotFinite) {
  constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(Circle(kNan), 0U);
  EXPECT_EQ(Circle(kNan), 1U);
  EXPECT_EQ(Circle(0.3), 2U);
}

TEST_F(EnsureSection, ComparesWithTheSizesThatAHostHasWritten) {
  Circle(0.3);
  ASSERT_EQ(At<IGeoSectionC>(1)->put_Diameter(0.4), S_OK);
  EXPECT_EQ(Circle(0.4), 0U);
  EXPECT_EQ(Circle(0.3), 1U);
  EXPECT_EQ(Names(), (std::vector<std::wstring>{L"IFC_C_30", L"IFC_C_30"}));
}

TEST_F(EnsureSection, ComparesWithEverySizeThatAHostHasWritten) {
  Rectangle(0.3, 0.5);
  T(0.25, 0.6, 1.2, 0.15);
  Thick(0.2);
  const auto rectangle = At<IGeoSectionR>(1);
  rectangle->put_Width(1.3);
  EXPECT_EQ(Rectangle(1.3, 0.5), 0U);
  rectangle->put_Height(1.5);
  EXPECT_EQ(Rectangle(1.3, 1.5), 0U);
  const auto t = At<IGeoSectionT>(2);
  t->put_WebWidth(2.25);
  EXPECT_EQ(T(2.25, 0.6, 1.2, 0.15), 1U);
  t->put_Height(2.6);
  EXPECT_EQ(T(2.25, 2.6, 1.2, 0.15), 1U);
  t->put_FlangeWidth(3.2);
  EXPECT_EQ(T(2.25, 2.6, 3.2, 0.15), 1U);
  t->put_FlangeThickness(2.15);
  EXPECT_EQ(T(2.25, 2.6, 3.2, 2.15), 1U);
  At<IGeoSectionThick>(3)->put_Thickness(0.9);
  EXPECT_EQ(Thick(0.9), 2U);
}

TEST_F(EnsureSection, ComparesSizesAndNotNames) {
  Circle(0.3);
  At<IGeoSection>(1)->put_Name(Bstr(L"round").Get());
  EXPECT_EQ(Circle(0.3), 0U);
  EXPECT_EQ(Names(), std::vector<std::wstring>{L"round"});
}

TEST_F(EnsureSection, LeavesTheElementUnchangedIfNoSectionCanBeCreated) {
  Element().sectionIndex = 7;
  const FailingClass r(CLSID_CoGeoSectionR, 0, DISP_E_OVERFLOW);
  const FailingClass c(CLSID_CoGeoSectionC, 0, DISP_E_OVERFLOW);
  const FailingClass t(CLSID_CoGeoSectionT, 0, DISP_E_OVERFLOW);
  const FailingClass thick(CLSID_CoGeoSectionThick, 0, DISP_E_OVERFLOW);
  const FailingClass profile(CLSID_CoGeoSectionProfile, 0, DISP_E_OVERFLOW);
  EXPECT_EQ(Structure().EnsureSectionR(Element(), 1, 1), DISP_E_OVERFLOW);
  EXPECT_EQ(Structure().EnsureSectionC(Element(), 1), DISP_E_OVERFLOW);
  EXPECT_EQ(Structure().EnsureSectionT(Element(), 1, 1, 1, 1), DISP_E_OVERFLOW);
  EXPECT_EQ(Structure().EnsureSectionThick(Element(), 1), DISP_E_OVERFLOW);
  EXPECT_EQ(Structure().AddSectionProfile(Element(), {}), DISP_E_OVERFLOW);
  EXPECT_EQ(Element().sectionIndex, 7U);
  EXPECT_EQ(CountOf(*Sections()), 0);
}

TEST_F(EnsureSection, ReturnsTheFailureIfThereIsNoCollection) {
  const FailingClass failing(CLSID_CoGeoSections, 0, DISP_E_OVERFLOW);
  EXPECT_EQ(Structure().EnsureSectionC(Element(), 1), DISP_E_OVERFLOW);
  EXPECT_EQ(Structure().AddSectionProfile(Element(), {}), DISP_E_OVERFLOW);
  EXPECT_EQ(Element().sectionIndex, CoGeoObject::kNoSection);
}

TEST_F(EnsureSection, ReturnsTheFailureOfASectionToReturnItsKind) {
  Circle(0.3);
  ComPtr<IGeoSection> unkind;
  MakeObject<UnkindSection>(IidOf<IGeoSection>(), reinterpret_cast<void**>(unkind.Put()));
  ObjectOf<CoGeoSections>(Sections()).Append(unkind);
  Element().sectionIndex = 7;
  EXPECT_EQ(Structure().EnsureSectionC(Element(), 0.4), DISP_E_OVERFLOW);
  EXPECT_EQ(Structure().EnsureSectionR(Element(), 0.4, 0.4), DISP_E_OVERFLOW);
  EXPECT_EQ(Structure().AddSectionProfile(Element(), {}), DISP_E_OVERFLOW);
  EXPECT_EQ(Element().sectionIndex, 7U);
  EXPECT_EQ(CountOf(*Sections()), 2);
  EXPECT_EQ(Circle(0.3), 0U) << "the search ends before the section that fails";
}

TEST_F(EnsureSection, AddsManySectionsInLinearTime) {
  constexpr int kCount = 100'000;
  for (int round = 0; round < 2; ++round) {
    for (int i = 0; i < kCount; ++i) {
      ASSERT_EQ(Circle(0.01 * i), static_cast<std::uint64_t>(i));
    }
  }
  EXPECT_EQ(CountOf(*Sections()), kCount);
}

TEST_F(EnsureSection, DoesNotSearchTheSectionsOfAnotherStructure) {
  constexpr int kCount = 20'000;
  const auto other = Create<IGeoStructure>(CLSID_CoGeoStructure);
  ASSERT_EQ(ObjectOf<CoGeoStructure>(other).EnsureSectionC(Element(), 1.0), S_OK);
  ComPtr<IGeoSection> section;
  GetObject(*other, &IGeoStructure::get_Sections)->ItemByIndex(1, section.Put());
  const auto circle = section.As<IGeoSectionC>();
  for (int i = 0; i < kCount; ++i) {
    circle->put_Diameter(i);
    ASSERT_EQ(Circle(0.01 * i), static_cast<std::uint64_t>(i));
  }
}

TEST_F(EnsureSection, LeavesSectionsUsableAfterTheEndOfTheStructure) {
  Circle(0.3);
  const auto section = At<IGeoSectionC>(1);
  structure.Reset();
  EXPECT_EQ(section->put_Diameter(0.5), S_OK);
  EXPECT_EQ(GetValue(*section, &IGeoSectionC::get_Diameter), 0.5);
}

}  // namespace
}  // namespace KelIFC
