#include "kelifc/geo/geo_object.h"

#include <gtest/gtest.h>

#include "kelifc/geo/ifc_server_object.h"
#include "kelifc/geo/sections.h"
#include "kelifc/geo/structure.h"
#include "kelifc/platform/com_guid.h"
#include "kelifc/schema/ifc2x3.h"

#include "tests/geo/elements.h"
#include "tests/geo/host.h"
#include "tests/geo/model_text.h"

namespace KelIFC {
namespace {

/// A storey with two walls in it, a wall in the building and one that is nowhere.
const char kModel[] =
    "#1=IFCBUILDING('1Building00000000000aa',$,'B',$,$,$,$,$,.ELEMENT.,$,$,$);\n"
    "#2=IFCBUILDINGSTOREY('1Storey000000000000aaa',$,'S0',$,$,$,$,$,.ELEMENT.,0.);\n"
    "#3=IFCBUILDINGSTOREY('1Storey000000000000aab',$,'S1',$,$,#20,$,$,.ELEMENT.,3.);\n"
    "#10=IFCWALL('1Wall00000000000000aaa',$,'in S1',$,$,$,$,$);\n"
    "#11=IFCWALL('1Wall00000000000000aab',$,'in B',$,$,$,$,$);\n"
    "#12=IFCWALL('1Wall00000000000000aac',$,'nowhere',$,$,$,$,$);\n"
    "#13=IFCPERSON($,'P',$,$,$,$,$,$);\n"
    "#20=IFCLOCALPLACEMENT($,#21);\n"
    "#21=IFCAXIS2PLACEMENT3D(#22,$,$);\n"
    "#22=IFCCARTESIANPOINT((0.,0.,3.));\n"
    "#30=IFCRELCONTAINEDINSPATIALSTRUCTURE('1Rel000000000000000aaa',$,$,$,(#11),#1);\n"
    "#31=IFCRELCONTAINEDINSPATIALSTRUCTURE('1Rel000000000000000aab',$,$,$,(#10),#1);\n"
    "#32=IFCRELCONTAINEDINSPATIALSTRUCTURE('1Rel000000000000000aac',$,$,$,(#10),#3);\n"
    "#33=IFCRELCONTAINEDINSPATIALSTRUCTURE('1Rel000000000000000aad',$,$,$,(#10),#2);\n";

template <class Class>
class GeoObject : public HostTest {};
TYPED_TEST_SUITE(GeoObject, ElementClasses);

TYPED_TEST(GeoObject, IsEmptyWhenNew) {
  const auto element = CreateOwn<TypeParam>();
  EXPECT_EQ(GetText(*element, &IGeoObject::get_Name), L"");
  const auto& object = static_cast<CoGeoObject&>(OwnOf<TypeParam>(element));
  EXPECT_TRUE(IsNullGuid(object.guid));
  EXPECT_EQ(object.sectionIndex, CoGeoObject::kNoSection);
  EXPECT_EQ(object.server.Get(), nullptr);
}

TYPED_TEST(GeoObject, KeepsItsName) {
  const auto element = CreateOwn<TypeParam>();
  EXPECT_EQ(element->put_Name(Bstr(L"W\xFC").Get()), S_OK);
  EXPECT_EQ(GetText(*element, &IGeoObject::get_Name), L"W\xFC");
  EXPECT_EQ(element->put_Name(nullptr), S_OK);
  EXPECT_EQ(GetText(*element, &IGeoObject::get_Name), L"");
}

TYPED_TEST(GeoObject, KeepsItsIdentifierInTheBracedForm) {
  const auto element = CreateOwn<TypeParam>();
  const std::wstring text = L"{00112233-4455-6677-8899-AABBCCDDEEFF}";
  EXPECT_EQ(element->put_GUID(Bstr(text.c_str()).Get()), S_OK);
  Bstr given;
  EXPECT_EQ(element->get_GUID(given.Put()), S_OK);
  EXPECT_EQ(given.Text(), text);
  EXPECT_EQ(OwnOf<TypeParam>(element).guid.Data1, 0x00112233u);
}

TYPED_TEST(GeoObject, TakesNoOtherTextForAnIdentifier) {
  const auto element = CreateOwn<TypeParam>();
  EXPECT_EQ(element->put_GUID(Bstr(L"00112233").Get()), CO_E_CLASSSTRING);
  EXPECT_LT(element->put_GUID(nullptr), 0);
  EXPECT_TRUE(IsNullGuid(OwnOf<TypeParam>(element).guid));
}

TYPED_TEST(GeoObject, HasTheCodeFour) {
  const auto element = CreateOwn<TypeParam>();
  EXPECT_EQ(Get(*element, &IGeoObject::get_ObjectCode), 4);
}

TYPED_TEST(GeoObject, TakesNoNullPointers) {
  const auto element = CreateOwn<TypeParam>();
  EXPECT_EQ(element->get_Name(nullptr), E_POINTER);
  EXPECT_EQ(element->get_GUID(nullptr), E_POINTER);
  EXPECT_EQ(element->get_ObjectCode(nullptr), E_POINTER);
  EXPECT_EQ(element->get_SectionName(nullptr), E_POINTER);
  EXPECT_EQ(element->get_StoreyNumber(nullptr), E_POINTER);
}

TYPED_TEST(GeoObject, SharesThePointerOfItsOwnInterface) {
  const auto element = CreateOwn<TypeParam>();
  const auto object = element.template As<IGeoObject>();
  EXPECT_EQ(static_cast<void*>(object.Get()), static_cast<void*>(element.Get()));
}

TYPED_TEST(GeoObject, OfAHostHasNeitherSectionNorStorey) {
  const auto element = CreateOwn<TypeParam>();
  Bstr name;
  SHORT number = 7;
  EXPECT_EQ(element->get_SectionName(name.Put()), E_POINTER);
  EXPECT_EQ(name.Get(), nullptr);
  EXPECT_EQ(element->get_StoreyNumber(&number), E_POINTER);
  EXPECT_EQ(number, 0);
}

TYPED_TEST(GeoObject, AnswersNotImplementedInItsReservedPlaces) {
  const auto element = CreateOwn<TypeParam>();
  EXPECT_EQ(element->Reserved2(nullptr), E_NOTIMPL);
  EXPECT_EQ(element->Reserved7(1), E_NOTIMPL);
  EXPECT_EQ(element->Reserved15(nullptr), E_NOTIMPL);
  CoGeoObject& object = OwnOf<TypeParam>(element);
  EXPECT_EQ(object.Reserved1(nullptr), E_NOTIMPL);
  EXPECT_EQ(object.Reserved7(1), E_NOTIMPL);
  EXPECT_EQ(object.Reserved26(nullptr), E_NOTIMPL);
}

/// Walls that are linked to a model.
class LinkedObject : public HostTest {
 protected:
  void Load(const char* schema = "IFC2X3") {
    server = LoadModel(schema, kModel);
    wall = CreateOwn<CoGeoWall>();
    Object().server = static_cast<CoIFCServer&>(*server).Link();
  }

  CoGeoObject& Object() { return OwnOf<CoGeoWall>(wall); }

  void TearDown() override {
    wall.Reset();
    server.Reset();
    HostTest::TearDown();
  }

  /// Makes the wall that of the instance.
  void StandFor(std::size_t instance) {
    auto& model = static_cast<CoIFCServer&>(*server).Model();
    if (const auto* root = dynamic_cast<KelIFC2x3::IfcRoot*>(model.GetItem(instance))) {
      Object().guid = root->GetGlobalGUID();
    }
  }

  int StoreyOf(std::size_t instance) {
    StandFor(instance);
    return Get(*wall, &IGeoObject::get_StoreyNumber);
  }

  ComPtr<IIFCServer> server;
  ComPtr<IGeoWall> wall;
};

TEST_F(LinkedObject, HasTheNumberOfTheFirstStoreyThatContainsIt) {
  Load();
  EXPECT_EQ(StoreyOf(10), 1);
}

TEST_F(LinkedObject, HasNoNumberOutsideOfStoreys) {
  Load();
  EXPECT_EQ(StoreyOf(11), 32767);
  EXPECT_EQ(StoreyOf(12), 32767);
}

TEST_F(LinkedObject, HasNoNumberIfItsInstanceIsNoElement) {
  Load();
  EXPECT_EQ(StoreyOf(2), 32767);
}

TEST_F(LinkedObject, HasNoStoreyWithoutAnInstance) {
  Load();
  SHORT number = 7;
  EXPECT_EQ(wall->put_GUID(Bstr(L"{00112233-4455-6677-8899-AABBCCDDEEFF}").Get()), S_OK);
  EXPECT_EQ(wall->get_StoreyNumber(&number), E_POINTER);
  EXPECT_EQ(number, 0);
}

TEST_F(LinkedObject, LooksForAnotherInstanceOnceItsIdentifierIsChanged) {
  Load();
  EXPECT_EQ(StoreyOf(12), 32767);
  EXPECT_EQ(StoreyOf(10), 1);
}

TEST_F(LinkedObject, HasAnEmptySectionNameWithoutASection) {
  Load();
  EXPECT_EQ(GetText(*wall, &IGeoObject::get_SectionName), L"");
  Object().sectionIndex = 5;
  EXPECT_EQ(GetText(*wall, &IGeoObject::get_SectionName), L"");
}

TEST_F(LinkedObject, HasTheNameOfItsSectionAtEachCall) {
  Load();
  const auto structure = GetObject(*server, &IIFCServer::get_Structure);
  auto& own = static_cast<CoGeoStructure&>(*structure);
  EXPECT_EQ(own.EnsureSectionThick(Object(), 0.2), S_OK);
  EXPECT_EQ(GetText(*wall, &IGeoObject::get_SectionName), L"IFC_H_20");
  const auto sections = GetObject(*structure, &IGeoStructure::get_Sections);
  ComPtr<IGeoSection> section;
  EXPECT_EQ(sections->ItemByIndex(1, section.Put()), S_OK);
  EXPECT_EQ(section->put_Name(Bstr(L"brick").Get()), S_OK);
  EXPECT_EQ(GetText(*wall, &IGeoObject::get_SectionName), L"brick");
}

TEST_F(LinkedObject, SurvivesItsServerObject) {
  Load();
  StandFor(10);
  server.Reset();
  Bstr name;
  SHORT number = 7;
  EXPECT_EQ(wall->get_SectionName(name.Put()), E_POINTER);
  EXPECT_EQ(wall->get_StoreyNumber(&number), E_POINTER);
  EXPECT_EQ(wall->put_Name(Bstr(L"W").Get()), S_OK);
}

}  // namespace
}  // namespace KelIFC
