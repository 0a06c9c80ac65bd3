#include "kelifc/geo/structure.h"

#include <gtest/gtest.h>

#include "kelifc/geo/ifc_server_object.h"

#include "tests/geo/failing_factory.h"
#include "tests/geo/host.h"
#include "tests/geo/model_text.h"
#include "tests/import/model_builder.h"

namespace KelIFC {
namespace {

constexpr char kStorey[] =
    "#7=IFCBUILDINGSTOREY('3VvSUbOOfKXvqnv$9xajtg',$,'EG',$,$,$,$,$,.ELEMENT.,2.5);\n";
constexpr char kTwoStoreys[] =
    "#7=IFCBUILDINGSTOREY('3VvSUbOOfKXvqnv$9xajtg',$,'EG',$,$,$,$,$,.ELEMENT.,2.5);\n"
    "#8=IFCBUILDINGSTOREY('2UPNrouxHRe8xN_Pksy8Kq',$,'OG',$,$,$,$,$,.ELEMENT.,2.5);\n";

class Structure : public HostTest {};

ComPtr<IGeoStructure> StructureOf(const ComPtr<IIFCServer>& server) {
  return GetObject(*server, &IIFCServer::get_Structure);
}

/// A collection of a structure, without its type.
struct Child {
  const char* name;
  bool isFilled;
  CLSID clsid;
  HRESULT (*get)(IGeoStructure&, ComPtr<IUnknown>*);
};

template <class Interface, HRESULT (IGeoStructure::*operation)(Interface**)>
HRESULT GetChild(IGeoStructure& structure, ComPtr<IUnknown>* out) {
  if (out == nullptr) return (structure.*operation)(nullptr);
  ComPtr<Interface> child;
  const HRESULT status = (structure.*operation)(child.Put());
  *out = child.template As<IUnknown>();
  return status;
}

constexpr Child kChildren[] = {
    {"storeys", true, CLSID_CoGeoStoreys, GetChild<IGeoStoreys, &IGeoStructure::get_Storeys>},
    {"beams", true, CLSID_CoGeoBeams, GetChild<IGeoBeams, &IGeoStructure::get_Beams>},
    {"columns", true, CLSID_CoGeoColumns, GetChild<IGeoColumns, &IGeoStructure::get_Columns>},
    {"walls", true, CLSID_CoGeoWalls, GetChild<IGeoWalls, &IGeoStructure::get_Walls>},
    {"plates", true, CLSID_CoGeoPlates, GetChild<IGeoPlates, &IGeoStructure::get_Plates>},
    {"foots", true, CLSID_CoGeoFoots, GetChild<IGeoFoots, &IGeoStructure::get_Foots>},
    {"sections", false, CLSID_CoGeoSections, GetChild<IGeoSections, &IGeoStructure::get_Sections>},
    {"materials", false, CLSID_CoGeoMaterials,
     GetChild<IGeoMaterials, &IGeoStructure::get_Materials>},
    {"objects", false, CLSID_CoGeoObjects, GetChild<IGeoObjects, &IGeoStructure::get_Objects>},
};

TEST_F(Structure, ReturnsTheSameObjectForACollection) {
  const auto server = LoadModel("IFC2X3", kStorey);
  const auto structure = StructureOf(server);
  for (const Child& child : kChildren) {
    ComPtr<IUnknown> first;
    ComPtr<IUnknown> second;
    EXPECT_EQ(child.get(*structure, &first), S_OK) << child.name;
    EXPECT_EQ(child.get(*structure, &second), S_OK) << child.name;
    EXPECT_TRUE(first);
    EXPECT_EQ(first.Get(), second.Get()) << child.name;
  }
}

TEST_F(Structure, RefusesNullOutputs) {
  const auto server = LoadModel("IFC2X3", kStorey);
  const auto structure = StructureOf(server);
  for (const Child& child : kChildren) EXPECT_EQ(child.get(*structure, nullptr), E_POINTER);
}

TEST_F(Structure, ReturnsTheFailureToCreateACollectionAndTriesAgain) {
  const auto server = LoadModel("IFC2X3", kStorey);
  const auto structure = StructureOf(server);
  for (const Child& child : kChildren) {
    ComPtr<IUnknown> out;
    {
      const FailingClass failing(child.clsid, 0, DISP_E_OVERFLOW);
      EXPECT_EQ(child.get(*structure, &out), DISP_E_OVERFLOW) << child.name;
      EXPECT_FALSE(out);
    }
    EXPECT_EQ(child.get(*structure, &out), S_OK) << child.name;
  }
}

TEST_F(Structure, HasEmptyCollectionsBeforeALoad) {
  const auto server = Create<IIFCServer>(CLSID_CoIFCServer);
  const auto structure = StructureOf(server);
  EXPECT_EQ(CountOf(*GetObject(*structure, &IGeoStructure::get_Storeys)), 0);
  EXPECT_EQ(CountOf(*GetObject(*structure, &IGeoStructure::get_Columns)), 0);
  EXPECT_EQ(CountOf(*GetObject(*structure, &IGeoStructure::get_Sections)), 0);
}

TEST_F(Structure, KeepsACollectionWhoseConversionFailed) {
  const auto server = LoadModel("IFC2X3", kTwoStoreys);
  const auto structure = StructureOf(server);
  auto* out = reinterpret_cast<IGeoStoreys*>(this);
  {
    const FailingClass failing(CLSID_CoGeoStorey, 1, E_OUTOFMEMORY);
    EXPECT_EQ(structure->get_Storeys(&out), E_OUTOFMEMORY);
    EXPECT_EQ(out, nullptr);
  }
  EXPECT_EQ(CountOf(*GetObject(*structure, &IGeoStructure::get_Storeys)), 1);
}

TEST_F(Structure, ReturnsTheFailureIfItemsHaveNoClassObject) {
  const auto server = LoadModel("IFC2X3", kTwoStoreys);
  const auto structure = StructureOf(server);
  {
    const MissingClass missing(CLSID_CoGeoStorey);
    ComPtr<IGeoStoreys> out;
    EXPECT_EQ(structure->get_Storeys(out.Put()), E_NOINTERFACE);
  }
  EXPECT_EQ(CountOf(*GetObject(*structure, &IGeoStructure::get_Storeys)), 0);
}

TEST_F(Structure, IsUnchangedAfterAnotherLoad) {
  const auto server = LoadModel("IFC2X3", kStorey);
  const auto structure = StructureOf(server);
  const auto storeys = GetObject(*structure, &IGeoStructure::get_Storeys);
  const ModelFile other(ModelText("IFC2X2_FINAL", kTwoStoreys));
  ASSERT_EQ(LoadFile(*server, other.Path()), S_OK);
  EXPECT_EQ(StructureOf(server).Get(), structure.Get());
  EXPECT_EQ(GetObject(*structure, &IGeoStructure::get_Storeys).Get(), storeys.Get());
  EXPECT_EQ(CountOf(*storeys), 1);
}

TEST_F(Structure, ConvertsACollectionFromTheCurrentModel) {
  const auto server = LoadModel("IFC2X3", kStorey);
  const auto structure = StructureOf(server);
  const ModelFile other(ModelText("IFC2X2_FINAL", kTwoStoreys));
  ASSERT_EQ(LoadFile(*server, other.Path()), S_OK);
  EXPECT_EQ(CountOf(*GetObject(*structure, &IGeoStructure::get_Storeys)), 2);
}

/// Returns a round column and a rectangular beam.
std::string MakeColumnAndBeam(double radius, double width) {
  ModelBuilder model;
  const auto placement = model.Local(model.Placement({0, 0, 0}));
  model.Column(placement, model.Body({model.Extrusion(model.Circle(radius), 3)}));
  model.Product("IFCBEAM", placement, model.Body({model.Extrusion(model.Rectangle(width, 0.5), 4)}),
                "B");
  return model.Data();
}

/// Returns the names of the sections in their order.
std::wstring SectionsOf(IGeoStructure& structure) {
  const auto sections = GetObject(structure, &IGeoStructure::get_Sections);
  std::wstring names;
  for (LONG i = 1; i <= CountOf(*sections); ++i) {
    ComPtr<IGeoSection> section;
    EXPECT_EQ(sections->ItemByIndex(i, section.Put()), S_OK);
    names += GetText(*section, &IGeoSection::get_Name) + L" ";
  }
  return names;
}

TEST_F(Structure, GetsSectionsWhenElementsAreConverted) {
  const auto server = LoadModel("IFC2X3", MakeColumnAndBeam(0.05, 0.3));
  const auto structure = StructureOf(server);
  const auto sections = GetObject(*structure, &IGeoStructure::get_Sections);
  EXPECT_EQ(CountOf(*sections), 0);
  GetObject(*structure, &IGeoStructure::get_Columns);
  EXPECT_EQ(CountOf(*sections), 1);
  EXPECT_EQ(GetObject(*structure, &IGeoStructure::get_Sections).Get(), sections.Get());
}

TEST_F(Structure, OrdersSectionsByTheOrderOfTheCalls) {
  for (const bool isBeamFirst : {false, true}) {
    const auto server = LoadModel("IFC2X3", MakeColumnAndBeam(0.05, 0.3));
    const auto structure = StructureOf(server);
    if (isBeamFirst) GetObject(*structure, &IGeoStructure::get_Beams);
    GetObject(*structure, &IGeoStructure::get_Columns);
    GetObject(*structure, &IGeoStructure::get_Beams);
    EXPECT_EQ(SectionsOf(*structure),
              isBeamFirst ? L"IFC_R_30x50 IFC_C_10 " : L"IFC_C_10 IFC_R_30x50 ");
  }
}

TEST_F(Structure, AddsTheSectionsOfAnotherModel) {
  const auto server = LoadModel("IFC2X3", MakeColumnAndBeam(0.05, 0.3));
  const auto structure = StructureOf(server);
  const auto columns = GetObject(*structure, &IGeoStructure::get_Columns);
  const ModelFile other(ModelText("IFC2X2_FINAL", MakeColumnAndBeam(0.1, 0.2)));
  ASSERT_EQ(LoadFile(*server, other.Path()), S_OK);
  const auto beams = GetObject(*structure, &IGeoStructure::get_Beams);
  EXPECT_EQ(SectionsOf(*structure), L"IFC_C_10 IFC_R_20x50 ");
  ComPtr<IGeoColumn> column;
  ComPtr<IGeoBeam> beam;
  ASSERT_EQ(columns->Item(1, column.Put()), S_OK);
  ASSERT_EQ(beams->Item(1, beam.Put()), S_OK);
  EXPECT_EQ(GetText(*column, &IGeoObject::get_SectionName), L"IFC_C_10");
  EXPECT_EQ(GetText(*beam, &IGeoObject::get_SectionName), L"IFC_R_20x50");
}

TEST_F(Structure, CannotConvertIfAHostCreatedIt) {
  const auto structure = Create<IGeoStructure>(CLSID_CoGeoStructure);
  for (const Child& child : kChildren) {
    for (int call = 0; call < 2; ++call) {
      ComPtr<IUnknown> out;
      EXPECT_EQ(child.get(*structure, &out), child.isFilled ? E_POINTER : S_OK) << child.name;
      EXPECT_EQ(static_cast<bool>(out), !child.isFilled) << child.name;
    }
  }
}

TEST_F(Structure, KeepsItsCollectionsAfterTheEndOfItsServer) {
  auto server = LoadModel("IFC2X3", kStorey);
  const auto structure = StructureOf(server);
  const auto storeys = GetObject(*structure, &IGeoStructure::get_Storeys);
  server.Reset();
  EXPECT_EQ(GetObject(*structure, &IGeoStructure::get_Storeys).Get(), storeys.Get());
  EXPECT_EQ(CountOf(*storeys), 1);
  for (const Child& child : kChildren) {
    if (!child.isFilled || child.clsid == CLSID_CoGeoStoreys) continue;
    ComPtr<IUnknown> out;
    EXPECT_EQ(child.get(*structure, &out), E_POINTER) << child.name;
  }
}

TEST_F(Structure, ReturnsTheVersion) {
  const auto version = Create<IGeoVersion>(CLSID_CoGeoStructure);
  EXPECT_EQ(GetText(*version, &IGeoVersion::get_Version), L"25.0.3857");
  EXPECT_EQ(version->get_Version(nullptr), E_POINTER);
}

TEST_F(Structure, ComparesVersions) {
  const auto version = Create<IGeoVersion2>(CLSID_CoGeoStructure);
  VARIANT_BOOL out = 7;
  EXPECT_EQ(version->IsCompatible(Bstr(L"25.0.3857").Get(), &out), S_OK);
  EXPECT_EQ(out, -1);
  EXPECT_EQ(version->IsCompatible(Bstr(L"26.0.1").Get(), &out), S_OK);
  EXPECT_EQ(out, 0);
  EXPECT_EQ(version->IsCompatible(nullptr, &out), S_OK);
  EXPECT_EQ(out, -1);
  EXPECT_EQ(version->IsCompatible(Bstr(L"25.0.3857").Get(), nullptr), E_POINTER);
}

TEST_F(Structure, ReservesTheOtherOperations) {
  const auto structure = Create<IGeoStructure>(CLSID_CoGeoStructure);
  EXPECT_EQ(structure->Reserved2(), E_NOTIMPL);
  EXPECT_EQ(structure->Reserved7(nullptr), E_NOTIMPL);
  EXPECT_EQ(structure->Reserved20(), E_NOTIMPL);
  EXPECT_EQ(structure->Reserved27(nullptr, nullptr), E_NOTIMPL);
  EXPECT_EQ(structure->Reserved29(1.0), E_NOTIMPL);
  EXPECT_EQ(structure->Reserved35(1, nullptr), E_NOTIMPL);
  EXPECT_EQ(structure->Reserved39(nullptr, nullptr, nullptr), E_NOTIMPL);
}

}  // namespace
}  // namespace KelIFC
