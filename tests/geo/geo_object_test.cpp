#include "kelifc/geo/geo_object.h"

#include <gtest/gtest.h>

#include "kelifc/core/global_id.h"
#include "kelifc/geo/section.h"
#include "kelifc/geo/sections.h"
#include "kelifc/geo/structure.h"

#include "tests/geo/elements.h"
#include "tests/geo/failing_factory.h"
#include "tests/geo/model_text.h"
#include "tests/schema/slot_order.h"

namespace KelIFC {
namespace {

constexpr char kColumnId[] = "1VvSUbOOfKXvqnv$9xajtg";
constexpr char kOtherColumnId[] = "2VvSUbOOfKXvqnv$9xajtg";
constexpr char kStoreyId[] = "3VvSUbOOfKXvqnv$9xajtg";
constexpr char kUnknownId[] = "0VvSUbOOfKXvqnv$9xajtg";

constexpr wchar_t kBraced[] = L"{01234567-89AB-CDEF-0123-456789ABCDEF}";

/// Two columns, and two storeys at the levels 0 and 3.
const std::string kBuilding =
    "#1=IFCCOLUMN('1VvSUbOOfKXvqnv$9xajtg',$,'A',$,$,$,$,$);\n"
    "#2=IFCCOLUMN('2VvSUbOOfKXvqnv$9xajtg',$,'B',$,$,$,$,$);\n"
    "#3=IFCBUILDING('2UPNrouxHRe8xN_Pksy8Kr',$,'H',$,$,$,$,$,.ELEMENT.,$,$,$);\n"
    "#4=IFCCARTESIANPOINT((0.,0.,3.));\n"
    "#5=IFCAXIS2PLACEMENT3D(#4,$,$);\n"
    "#6=IFCLOCALPLACEMENT($,#5);\n"
    "#7=IFCBUILDINGSTOREY('3VvSUbOOfKXvqnv$9xajtg',$,'EG',$,$,$,$,$,.ELEMENT.,0.);\n"
    "#8=IFCBUILDINGSTOREY('2UPNrouxHRe8xN_Pksy8Kq',$,'OG',$,$,#6,$,$,.ELEMENT.,3.);\n";

/// Returns a relation by which a spatial structure contains elements.
std::string Contains(int number, const std::string& elements, const std::string& structure) {
  return "#" + std::to_string(number) +
         "=IFCRELCONTAINEDINSPATIALSTRUCTURE('2UPNrouxHRe8xN_Pksy8Ks',$,$,$," + elements + "," +
         structure + ");\n";
}

_GUID GuidOf(const char* id) {
  _GUID guid = {};
  EXPECT_TRUE(DecodeGlobalId64(id, guid));
  return guid;
}

/// Creates a column for the instance with an identifier.
ComPtr<IGeoColumn> CreateColumn(const ComPtr<IIFCServer>& server, const char* id = kColumnId) {
  auto column = CreateElement<CoGeoColumn>(server);
  ObjectOf<CoGeoColumn>(column).guid = GuidOf(id);
  return column;
}

SHORT StoreyOf(IGeoObject& element) { return GetValue(element, &IGeoObject::get_StoreyNumber); }

TEST(GeoObjectOperations, HaveAnOrderOfTheirOwn) {
  using O = CoGeoObject;
  ExpectRising({
      SlotOf(&O::Reserved1),        SlotOf(&O::Reserved2),  SlotOf(&O::Reserved3),
      SlotOf(&O::Reserved4),        SlotOf(&O::Reserved5),  SlotOf(&O::Reserved6),
      SlotOf(&O::Reserved7),        SlotOf(&O::get_GUID),   SlotOf(&O::put_GUID),
      SlotOf(&O::Reserved10),       SlotOf(&O::Reserved11), SlotOf(&O::get_Name),
      SlotOf(&O::put_Name),         SlotOf(&O::Reserved14), SlotOf(&O::Reserved15),
      SlotOf(&O::Reserved16),       SlotOf(&O::Reserved17), SlotOf(&O::Reserved18),
      SlotOf(&O::get_SectionName),  SlotOf(&O::Reserved20), SlotOf(&O::get_ObjectCode),
      SlotOf(&O::get_StoreyNumber), SlotOf(&O::Reserved23), SlotOf(&O::Reserved24),
      SlotOf(&O::Reserved25),       SlotOf(&O::Reserved26),
  });
  // The two slots of the destructor come first.
  EXPECT_EQ(SlotOf(&O::Reserved1), static_cast<std::ptrdiff_t>(2 * sizeof(void*)));
}

template <class Class>
class EachElement : public HostTest {};

TYPED_TEST_SUITE(EachElement, ElementClasses);

TYPED_TEST(EachElement, HasTheSamePointerAsAnObject) {
  const auto element = CreateOwn<TypeParam>();
  EXPECT_EQ(static_cast<void*>(element.template As<IGeoObject>().Get()),
            static_cast<void*>(element.Get()));
}

TYPED_TEST(EachElement, HasNoNameIdentifierAndSectionAtFirst) {
  const auto element = CreateOwn<TypeParam>();
  EXPECT_EQ(GetText(*element, &IGeoObject::get_Name), L"");
  const auto& object = ObjectOf<TypeParam>(element);
  EXPECT_EQ(object.sectionIndex, 0xFFFFFFFFFFFFFFFFu);
  EXPECT_TRUE(IsNullGuid(object.guid));
  EXPECT_EQ(object.server.Get(), nullptr);
}

TYPED_TEST(EachElement, KeepsAName) {
  const auto element = CreateOwn<TypeParam>();
  EXPECT_EQ(element->put_Name(Bstr(L"St\u00fctze \u4e00").Get()), S_OK);
  EXPECT_EQ(GetText(*element, &IGeoObject::get_Name), L"St\u00fctze ?");
  EXPECT_EQ(ObjectOf<TypeParam>(element).name, "St\xfctze ?");
  EXPECT_EQ(element->put_Name(nullptr), S_OK);
  EXPECT_EQ(GetText(*element, &IGeoObject::get_Name), L"");
  EXPECT_EQ(element->get_Name(nullptr), E_POINTER);
}

TYPED_TEST(EachElement, KeepsAnIdentifier) {
  const auto element = CreateOwn<TypeParam>();
  Bstr none;
  EXPECT_EQ(element->get_GUID(none.Put()), S_OK);
  EXPECT_EQ(none.Text(), L"{00000000-0000-0000-0000-000000000000}");
  EXPECT_EQ(element->put_GUID(Bstr(kBraced).Get()), S_OK);
  Bstr text;
  EXPECT_EQ(element->get_GUID(text.Put()), S_OK);
  EXPECT_EQ(text.Text(), kBraced);
  EXPECT_EQ(ObjectOf<TypeParam>(element).guid.Data1, 0x01234567u);
  EXPECT_EQ(element->get_GUID(nullptr), E_POINTER);
}

TYPED_TEST(EachElement, RefusesABadIdentifierAndThenHasNone) {
  const auto element = CreateOwn<TypeParam>();
  for (const wchar_t* text :
       {L"", L"{}", L"3VvSUbOOfKXvqnv$9xajtg", L"{01234567-89AB-CDEF-0123-456789ABCDE}",
        L"{01234567-89AB-CDEF-0123-456789ABCDEG}"}) {
    element->put_GUID(Bstr(kBraced).Get());
    EXPECT_EQ(element->put_GUID(Bstr(text).Get()), CO_E_CLASSSTRING);
    EXPECT_TRUE(IsNullGuid(ObjectOf<TypeParam>(element).guid));
  }
  EXPECT_EQ(element->put_GUID(nullptr), CO_E_CLASSSTRING);
}

TYPED_TEST(EachElement, HasTheObjectCodeFour) {
  const auto element = CreateOwn<TypeParam>();
  EXPECT_EQ(GetValue(*element, &IGeoObject::get_ObjectCode), 4);
  EXPECT_EQ(element->get_ObjectCode(nullptr), E_POINTER);
}

TYPED_TEST(EachElement, HasNoServerIfAHostCreatedIt) {
  const auto element = CreateOwn<TypeParam>();
  auto name = reinterpret_cast<BSTR>(this);
  EXPECT_EQ(element->get_SectionName(&name), E_POINTER);
  EXPECT_EQ(name, nullptr);
  SHORT number = 7;
  EXPECT_EQ(element->get_StoreyNumber(&number), E_POINTER);
  EXPECT_EQ(number, 0);
  EXPECT_EQ(element->get_SectionName(nullptr), E_POINTER);
  EXPECT_EQ(element->get_StoreyNumber(nullptr), E_POINTER);
}

TYPED_TEST(EachElement, HasNoServerAfterTheEndOfTheServer) {
  auto server = LoadModel("IFC2X3", kBuilding + Contains(9, "(#1)", "#7"));
  const auto element = CreateElement<TypeParam>(server);
  ObjectOf<TypeParam>(element).guid = GuidOf(kColumnId);
  EXPECT_EQ(StoreyOf(*element), 0);
  EXPECT_EQ(GetText(*element, &IGeoObject::get_SectionName), L"");
  server.Reset();
  SHORT number = 7;
  Bstr name;
  EXPECT_EQ(element->get_StoreyNumber(&number), E_POINTER);
  EXPECT_EQ(element->get_SectionName(name.Put()), E_POINTER);
  EXPECT_EQ(GetText(*element, &IGeoObject::get_Name), L"");
}

TYPED_TEST(EachElement, ReservesTheOtherOperationsOfAnObject) {
  const auto element = CreateOwn<TypeParam>();
  EXPECT_EQ(element->Reserved2(nullptr), E_NOTIMPL);
  EXPECT_EQ(element->Reserved4(nullptr), E_NOTIMPL);
  EXPECT_EQ(element->Reserved7(0), E_NOTIMPL);
  EXPECT_EQ(element->Reserved11(nullptr), E_NOTIMPL);
  EXPECT_EQ(element->Reserved12(0), E_NOTIMPL);
  EXPECT_EQ(element->Reserved15(nullptr), E_NOTIMPL);
}

TYPED_TEST(EachElement, ReservesTheOtherOperationsOfItsBase) {
  const auto element = CreateOwn<TypeParam>();
  CoGeoObject& object = ObjectOf<TypeParam>(element);
  EXPECT_EQ(object.Reserved1(nullptr), E_NOTIMPL);
  EXPECT_EQ(object.Reserved2(0), E_NOTIMPL);
  for (const auto operation :
       {&CoGeoObject::Reserved3, &CoGeoObject::Reserved4, &CoGeoObject::Reserved5,
        &CoGeoObject::Reserved6, &CoGeoObject::Reserved10, &CoGeoObject::Reserved14,
        &CoGeoObject::Reserved16, &CoGeoObject::Reserved17, &CoGeoObject::Reserved18,
        &CoGeoObject::Reserved20, &CoGeoObject::Reserved24, &CoGeoObject::Reserved25,
        &CoGeoObject::Reserved26}) {
    EXPECT_EQ((object.*operation)(nullptr), E_NOTIMPL);
  }
  EXPECT_EQ(object.Reserved7(0), E_NOTIMPL);
  EXPECT_EQ(object.Reserved11(0.0), E_NOTIMPL);
  EXPECT_EQ(object.Reserved15(0), E_NOTIMPL);
  EXPECT_EQ(object.Reserved23(0), E_NOTIMPL);
}

TYPED_TEST(EachElement, ReturnsTheSameByItsBase) {
  const auto element = CreateOwn<TypeParam>();
  CoGeoObject& object = ObjectOf<TypeParam>(element);
  EXPECT_EQ(object.put_Name(Bstr(L"A").Get()), S_OK);
  EXPECT_EQ(GetText(*element, &IGeoObject::get_Name), L"A");
  EXPECT_EQ(GetText(object, &CoGeoObject::get_Name), L"A");
  EXPECT_EQ(object.put_GUID(Bstr(kBraced).Get()), S_OK);
  EXPECT_EQ(GetText(object, &CoGeoObject::get_GUID), kBraced);
  EXPECT_EQ(GetValue(object, &CoGeoObject::get_ObjectCode), 4);
}

class SectionNameOfAnElement : public HostTest {};

TEST_F(SectionNameOfAnElement, IsTheNameOfItsSection) {
  const auto server = LoadModel("IFC2X3", "");
  const auto structure = GetObject(*server, &IIFCServer::get_Structure);
  const auto column = CreateColumn(server);
  auto& sections = ObjectOf<CoGeoStructure>(structure);
  ASSERT_EQ(sections.EnsureSectionC(ObjectOf<CoGeoColumn>(column), 0.1), S_OK);
  EXPECT_EQ(GetText(*column, &IGeoObject::get_SectionName), L"IFC_C_10");
  ASSERT_EQ(sections.EnsureSectionR(ObjectOf<CoGeoColumn>(column), 0.3, 0.5), S_OK);
  EXPECT_EQ(GetText(*column, &IGeoObject::get_SectionName), L"IFC_R_30x50");
}

TEST_F(SectionNameOfAnElement, FollowsANewNameOfTheSection) {
  const auto server = LoadModel("IFC2X3", "");
  const auto structure = GetObject(*server, &IIFCServer::get_Structure);
  const auto column = CreateColumn(server);
  ObjectOf<CoGeoStructure>(structure).EnsureSectionC(ObjectOf<CoGeoColumn>(column), 0.1);
  ComPtr<IGeoSection> section;
  GetObject(*structure, &IGeoStructure::get_Sections)->ItemByIndex(1, section.Put());
  section->put_Name(Bstr(L"round").Get());
  EXPECT_EQ(GetText(*column, &IGeoObject::get_SectionName), L"round");
}

TEST_F(SectionNameOfAnElement, IsEmptyWithoutASection) {
  const auto server = LoadModel("IFC2X3", "");
  EXPECT_EQ(GetText(*CreateColumn(server), &IGeoObject::get_SectionName), L"");
}

TEST_F(SectionNameOfAnElement, IsEmptyForAMissingSection) {
  const auto server = LoadModel("IFC2X3", "");
  const auto structure = GetObject(*server, &IIFCServer::get_Structure);
  const auto column = CreateColumn(server);
  ObjectOf<CoGeoStructure>(structure).EnsureSectionC(ObjectOf<CoGeoColumn>(column), 0.1);
  for (const std::uint64_t index : {std::uint64_t{1}, std::uint64_t{1} << 32, ~std::uint64_t{0}}) {
    ObjectOf<CoGeoColumn>(column).sectionIndex = index;
    EXPECT_EQ(GetText(*column, &IGeoObject::get_SectionName), L"");
  }
}

TEST_F(SectionNameOfAnElement, ReturnsTheFailureIfThereAreNoSections) {
  const auto server = LoadModel("IFC2X3", "");
  const auto column = CreateColumn(server);
  Bstr name;
  {
    const FailingClass failing(CLSID_CoGeoStructure, 0, DISP_E_OVERFLOW);
    EXPECT_EQ(column->get_SectionName(name.Put()), DISP_E_OVERFLOW);
  }
  {
    const FailingClass failing(CLSID_CoGeoSections, 0, E_OUTOFMEMORY);
    EXPECT_EQ(column->get_SectionName(name.Put()), E_OUTOFMEMORY);
  }
  EXPECT_EQ(column->get_SectionName(name.Put()), S_OK);
}

/// The parameter is the schema: all releases must give the same results.
class StoreyNumberOfAnElement : public HostTest, public testing::WithParamInterface<const char*> {
 protected:
  static ComPtr<IIFCServer> Load(const std::string& more) {
    return LoadModel(GetParam(), kBuilding + more);
  }
};

INSTANTIATE_TEST_SUITE_P(Releases, StoreyNumberOfAnElement,
                         testing::Values("IFC2X_FINAL", "IFC2X2_FINAL", "IFC2X3"));

TEST_P(StoreyNumberOfAnElement, IsTheNumberOfTheStoreyThatContainsIt) {
  const auto server = Load(Contains(9, "(#1)", "#7") + Contains(10, "(#2)", "#8"));
  EXPECT_EQ(StoreyOf(*CreateColumn(server)), 0);
  EXPECT_EQ(StoreyOf(*CreateColumn(server, kOtherColumnId)), 1);
}

TEST_P(StoreyNumberOfAnElement, IsNoneIfNothingContainsTheElement) {
  const auto server = Load("");
  EXPECT_EQ(StoreyOf(*CreateColumn(server)), 32767);
}

TEST_P(StoreyNumberOfAnElement, IsNoneIfABuildingContainsTheElement) {
  const auto server = Load(Contains(9, "(#1)", "#3"));
  EXPECT_EQ(StoreyOf(*CreateColumn(server)), 32767);
}

TEST_P(StoreyNumberOfAnElement, IsNoneForAnInstanceThatIsNotAnElement) {
  const auto server = Load(Contains(9, "(#1)", "#7"));
  EXPECT_EQ(StoreyOf(*CreateColumn(server, kStoreyId)), 32767);
}

TEST_P(StoreyNumberOfAnElement, IsTakenFromTheFirstRelationWithAStorey) {
  const auto server =
      Load(Contains(9, "(#1)", "$") + Contains(10, "(#1)", "#99") + Contains(11, "(#1)", "#3") +
           Contains(12, "(#1)", "#8") + Contains(13, "(#1)", "#7"));
  EXPECT_EQ(StoreyOf(*CreateColumn(server)), 1);
}

TEST_P(StoreyNumberOfAnElement, FollowsTheIdentifierThatAHostWrites) {
  const auto server = Load(Contains(9, "(#1)", "#7") + Contains(10, "(#2)", "#8"));
  const auto column = CreateColumn(server);
  const auto other = CreateColumn(server, kOtherColumnId);
  Bstr id;
  ASSERT_EQ(other->get_GUID(id.Put()), S_OK);
  ASSERT_EQ(column->put_GUID(id.Get()), S_OK);
  EXPECT_EQ(StoreyOf(*column), 1);
}

TEST_P(StoreyNumberOfAnElement, FailsWithoutAnInstance) {
  const auto server = Load(Contains(9, "(#1)", "#7"));
  for (const char* id : {kUnknownId, "0000000000000000000000"}) {
    SHORT number = 7;
    EXPECT_EQ(CreateColumn(server, id)->get_StoreyNumber(&number), E_POINTER);
    EXPECT_EQ(number, 0);
  }
}

TEST_P(StoreyNumberOfAnElement, ConvertsTheStoreys) {
  const auto server = Load(Contains(9, "(#1)", "#7"));
  const auto column = CreateColumn(server);
  SHORT number = 7;
  {
    const FailingClass failing(CLSID_CoGeoStorey, 1, DISP_E_OVERFLOW);
    EXPECT_EQ(column->get_StoreyNumber(&number), DISP_E_OVERFLOW);
    EXPECT_EQ(number, 0);
  }
  EXPECT_EQ(StoreyOf(*column), 0) << "the storeys that were converted";
}

TEST_P(StoreyNumberOfAnElement, ReturnsTheFailureIfThereIsNoStructure) {
  const auto server = Load(Contains(9, "(#1)", "#7"));
  const FailingClass failing(CLSID_CoGeoStructure, 0, DISP_E_OVERFLOW);
  SHORT number = 7;
  EXPECT_EQ(CreateColumn(server)->get_StoreyNumber(&number), DISP_E_OVERFLOW);
}

TEST_P(StoreyNumberOfAnElement, IsReadFromTheCurrentModel) {
  const auto server = Load(Contains(9, "(#1)", "#7"));
  const auto column = CreateColumn(server);
  EXPECT_EQ(StoreyOf(*column), 0);
  const ModelFile other(ModelText(GetParam(), kBuilding + Contains(9, "(#1)", "#8")));
  ASSERT_EQ(LoadFile(*server, other.Path()), S_OK);
  EXPECT_EQ(StoreyOf(*column), 1);
  const ModelFile empty(ModelText(GetParam(), ""));
  ASSERT_EQ(LoadFile(*server, empty.Path()), S_OK);
  SHORT number = 7;
  EXPECT_EQ(column->get_StoreyNumber(&number), E_POINTER);
}

TEST_F(StoreyNumberOfAnElement, IsNotFoundInAnOlderRelease) {
  const auto server = Create<IIFCServer>(CLSID_CoIFCServer);
  const ModelFile file(ModelText("IFC20_LONGFORM", kBuilding));
  EXPECT_EQ(LoadFile(*server, file.Path()), STG_E_FILENOTFOUND);
  SHORT number = 7;
  EXPECT_EQ(CreateColumn(server)->get_StoreyNumber(&number), E_POINTER);
}

}  // namespace
}  // namespace KelIFC
