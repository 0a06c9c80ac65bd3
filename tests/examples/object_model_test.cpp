#include "kelifc/object_model.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "tests/paths.h"

// The C++ layer over the interfaces, used from outside the shared library as a host uses it.

namespace {

using KelIFC::ComPtr;
using KelIFC::Get;
using KelIFC::GetElements;
using KelIFC::GetOpenings;
using KelIFC::ItemAt;
using KelIFC::Items;
using KelIFC::NamedElement;
using KelIFC::OpenedModel;
using KelIFC::OpenModel;
using KelIFC::Query;
using KelIFC::StatusError;
using KelIFC::TryGet;
using testing::ElementsAre;

std::string Shipped(const std::string& model) {
  return std::string(KelIFC::kExamplesDir) + "/" + model;
}

/// The status of the StatusError that `call` throws; S_OK if it throws none.
HRESULT StatusOf(const std::function<void()>& call) {
  try {
    call();
  } catch (const StatusError& error) {
    return error.GetStatus();
  }
  return S_OK;
}

TEST(OpenModel, ReturnsTheServerObjectAndItsStructure) {
  const auto [server, structure] = OpenModel(Shipped("house.ifc"));
  EXPECT_EQ(Get(server, &IIFCServer::get_Structure).Get(), structure.Get());
  EXPECT_EQ(Items(structure, &IGeoStructure::get_Walls).size(), 6U);
}

TEST(OpenModel, ThrowsTheTextOfTheErrorObject) {
  try {
    OpenModel("no/such.ifc");
    FAIL();
  } catch (const StatusError& error) {
    EXPECT_EQ(error.GetStatus(), STG_E_FILENOTFOUND);
    EXPECT_STREQ(error.what(), "no/such.ifc was not found or cannot be opened.");
  }
}

TEST(OpenModel, ThrowsForAReleaseWithoutAConversion) {
  EXPECT_EQ(StatusOf([] { OpenModel(Shipped("shed.ifc")); }), STG_E_FILENOTFOUND);
}

TEST(OpenModel, LeavesNoErrorObjectBehind) {
  EXPECT_EQ(StatusOf([] { OpenModel("no/such.ifc"); }), STG_E_FILENOTFOUND);
  ComPtr<IErrorInfo> error;
  EXPECT_EQ(GetErrorInfo(0, error.Put()), S_FALSE);
}

TEST(CreateServer, ReturnsAServerObjectWithAnEmptyModel) {
  const auto server = KelIFC::CreateServer();
  const auto structure = Get(server, &IIFCServer::get_Structure);
  EXPECT_TRUE(Items(structure, &IGeoStructure::get_Storeys).empty());
}

TEST(Get, ReturnsTextAsUtf8) {
  const OpenedModel model = OpenModel(Shipped("barn.ifc"));
  const auto storeys = Get(model.structure, &IGeoStructure::get_Storeys);
  EXPECT_EQ(Get(ItemAt(storeys, 1), &IGeoStorey::get_Name), "Erdgescho\xC3\x9F");
}

TEST(Get, ReturnsNumbersAsTheyAre) {
  const OpenedModel model = OpenModel(Shipped("house.ifc"));
  const auto storey = ItemAt(Get(model.structure, &IGeoStructure::get_Storeys), 2);
  EXPECT_EQ(Get(storey, &IGeoStorey::get_Number), 1);
  EXPECT_EQ(Get(storey, &IGeoStorey::get_Level), 2.8);
}

TEST(Get, TakesAnInterfaceOrAPointerToADerivedOne) {
  const OpenedModel model = OpenModel(Shipped("house.ifc"));
  const auto column = ItemAt(Get(model.structure, &IGeoStructure::get_Columns), 1);
  EXPECT_EQ(Get(column, &IGeoObject::get_Name), "Column A");
  EXPECT_EQ(Get(*column, &IGeoColumn::get_Name), "Column A");
}

TEST(Get, ThrowsTheStatusOfAnOperationThatFails) {
  const OpenedModel model = OpenModel(Shipped("house.ifc"));
  const auto column = ItemAt(Get(model.structure, &IGeoStructure::get_Columns), 1);
  const auto polyline = Query<IGeoPolyline>(column);
  try {
    Get(polyline, &IGeoPolyline::get_Closed);
    FAIL();
  } catch (const StatusError& error) {
    EXPECT_EQ(error.GetStatus(), E_NOTIMPL);
    EXPECT_STREQ(error.what(), "the object model returned status 0x80004001");
  }
}

TEST(Get, ThrowsForAnEmptyPointer) {
  const ComPtr<IGeoColumn> none;
  EXPECT_EQ(StatusOf([&] { Get(none, &IGeoColumn::get_Name); }), E_POINTER);
}

TEST(TryGet, ReturnsTheValueOrNothing) {
  OpenedModel model = OpenModel(Shipped("house.ifc"));
  const auto column = ItemAt(Get(model.structure, &IGeoStructure::get_Columns), 1);
  EXPECT_EQ(TryGet(column, &IGeoColumn::get_StoreyNumber), SHORT{0});
  EXPECT_EQ(TryGet(column, &IGeoColumn::get_SectionName), "IFC_R_24x24");
  model = {};
  EXPECT_EQ(TryGet(column, &IGeoColumn::get_StoreyNumber), std::nullopt);
  EXPECT_EQ(TryGet(column, &IGeoColumn::get_SectionName), std::nullopt);
}

TEST(Query, ThrowsIfTheObjectDoesNotHaveTheInterface) {
  const OpenedModel model = OpenModel(Shipped("house.ifc"));
  EXPECT_TRUE(Query<IGeoVersion>(model.structure));
  EXPECT_EQ(StatusOf([&] { Query<IGeoPoint>(model.structure); }), E_NOINTERFACE);
}

TEST(ItemAt, ServesCollectionsWithItemAndWithItemByIndex) {
  const OpenedModel model = OpenModel(Shipped("house.ifc"));
  const auto columns = Get(model.structure, &IGeoStructure::get_Columns);
  const auto sections = Get(model.structure, &IGeoStructure::get_Sections);
  EXPECT_EQ(Get(ItemAt(columns, 2), &IGeoColumn::get_Name), "IFC#215");
  EXPECT_EQ(Get(ItemAt(sections, 2), &IGeoSection::get_Name), "IFC_C_24");
}

TEST(ItemAt, ThrowsForAnIndexOutsideTheCollection) {
  const OpenedModel model = OpenModel(Shipped("house.ifc"));
  const auto columns = Get(model.structure, &IGeoStructure::get_Columns);
  EXPECT_EQ(StatusOf([&] { ItemAt(columns, 0); }), E_INVALIDARG);
  EXPECT_EQ(StatusOf([&] { ItemAt(columns, 3); }), E_FAIL);
}

TEST(Items, YieldsEachItemInOrder) {
  const OpenedModel model = OpenModel(Shipped("house.ifc"));
  std::vector<std::string> names;
  for (const auto& foot : Items(model.structure, &IGeoStructure::get_Foots)) {
    names.push_back(Get(foot, &IGeoFoot::get_Name));
  }
  EXPECT_THAT(names, ElementsAre("Pad 1", "Pad 2"));
}

TEST(Items, YieldsNumbersByValue) {
  const OpenedModel model = OpenModel(Shipped("hall.ifc"));
  const auto beam = ItemAt(Get(model.structure, &IGeoStructure::get_Beams), 3);
  const auto faces = Get(Get(beam, &IGeoBeam::get_BRep), &IGeoBRep::get_Faces);
  const auto numbers = Items(ItemAt(faces, 1), &IGeoFace::get_Numbers);
  EXPECT_THAT(std::vector<LONG>(numbers.begin(), numbers.end()), ElementsAre(1, 2, 3, 4));
}

TEST(Items, ServesTheStandardAlgorithms) {
  const OpenedModel model = OpenModel(Shipped("house.ifc"));
  const auto sections = Items(model.structure, &IGeoStructure::get_Sections);
  Get(model.structure, &IGeoStructure::get_Columns);
  const auto columns = Items(model.structure, &IGeoStructure::get_Columns);
  EXPECT_EQ(std::count_if(columns.begin(), columns.end(),
                          [](const ComPtr<IGeoColumn>& column) {
                            return Get(column, &IGeoColumn::get_SectionName) == "IFC_C_24";
                          }),
            1);
  EXPECT_TRUE(sections.empty());
}

TEST(Items, OfAnEmptyCollectionYieldsNothing) {
  const OpenedModel model = OpenModel(Shipped("house.ifc"));
  for (const auto& material : Items(model.structure, &IGeoStructure::get_Materials)) {
    FAIL() << material.Get();
  }
}

TEST(Items, CoversTheItemsThatExistedWhenTheRangeWasMade) {
  const OpenedModel model = OpenModel(Shipped("house.ifc"));
  const auto sections = Get(model.structure, &IGeoStructure::get_Sections);
  const auto before = Items(sections);
  Get(model.structure, &IGeoStructure::get_Columns);
  EXPECT_EQ(std::distance(before.begin(), before.end()), 0);
  EXPECT_EQ(Items(sections).size(), 2U);
}

TEST(Items, KeepsTheCollectionAlive) {
  OpenedModel model = OpenModel(Shipped("house.ifc"));
  const auto columns = Items(model.structure, &IGeoStructure::get_Columns);
  model = {};
  EXPECT_EQ(Get(*columns.begin(), &IGeoColumn::get_Name), "Column A");
}

TEST(Items, ThrowsForAnEmptyPointer) {
  EXPECT_EQ(StatusOf([] { Items(ComPtr<IGeoColumns>()); }), E_POINTER);
}

std::vector<std::string> KindsAndNames(const std::vector<NamedElement>& elements) {
  std::vector<std::string> texts;
  texts.reserve(elements.size());
  for (const auto& [kind, object] : elements) {
    texts.push_back(std::string(kind) + " " + Get(object, &IGeoObject::get_Name));
  }
  return texts;
}

TEST(GetElements, ReturnsAllElementsByKind) {
  const OpenedModel model = OpenModel(Shipped("house.ifc"));
  std::vector<std::string> expected;
  const auto add = [&](const std::string& kind, auto getter) {
    for (const auto& element : Items(model.structure, getter)) {
      expected.push_back(kind + " " + Get(Query<IGeoObject>(element), &IGeoObject::get_Name));
    }
  };
  add("Column", &IGeoStructure::get_Columns);
  add("Beam", &IGeoStructure::get_Beams);
  add("Wall", &IGeoStructure::get_Walls);
  add("Plate", &IGeoStructure::get_Plates);
  add("Foot", &IGeoStructure::get_Foots);
  EXPECT_GT(expected.size(), 10U);
  EXPECT_EQ(KindsAndNames(GetElements(model.structure)), expected);
}

TEST(GetElements, ThrowsForAnEmptyPointer) {
  EXPECT_EQ(StatusOf([] { GetElements(ComPtr<IGeoStructure>()); }), E_POINTER);
}

TEST(GetOpenings, ReturnsTheOpeningsOfWallsAndPlates) {
  const OpenedModel model = OpenModel(Shipped("house.ifc"));
  std::set<std::string> kinds;
  for (const auto& element : GetElements(model.structure)) {
    for (const auto& opening : GetOpenings(element.object)) {
      kinds.insert(std::string(element.kind) + " " + opening.kind);
    }
  }
  EXPECT_THAT(kinds, ElementsAre("Plate Hole", "Wall Door", "Wall Window"));
}

TEST(GetOpenings, ReturnsNoneForAnEmptyPointer) {
  EXPECT_TRUE(GetOpenings(ComPtr<IGeoObject>()).empty());
}

TEST(FindSection, FindsTheFirstSectionOfExactlyThatName) {
  const OpenedModel model = OpenModel(Shipped("house.ifc"));
  Get(model.structure, &IGeoStructure::get_Columns);
  const auto sections = Get(model.structure, &IGeoStructure::get_Sections);
  EXPECT_EQ(KelIFC::FindSection(sections, L"IFC_C_24").Get(), ItemAt(sections, 2).Get());
  EXPECT_FALSE(KelIFC::FindSection(sections, L"ifc_c_24"));
  EXPECT_FALSE(KelIFC::FindSection(sections, L""));
}

TEST(GetXYZ, ReturnsThePointOfAFoot) {
  const OpenedModel model = OpenModel(Shipped("house.ifc"));
  const auto foot = ItemAt(Get(model.structure, &IGeoStructure::get_Foots), 1);
  const auto [x, y, z] = KelIFC::GetXYZ(Query<IGeoPoint>(foot));
  EXPECT_DOUBLE_EQ(x, 2.7);
  EXPECT_DOUBLE_EQ(y, 3.12);
  EXPECT_DOUBLE_EQ(z, -0.8);
}

TEST(GetXYZ, ThrowsForAWindowWhosePointIsReserved) {
  const OpenedModel model = OpenModel(Shipped("house.ifc"));
  const auto wall = ItemAt(Get(model.structure, &IGeoStructure::get_Walls), 1);
  const auto window = ItemAt(Get(wall, &IGeoWall::get_Windows), 1);
  EXPECT_EQ(StatusOf([&] { KelIFC::GetXYZ(Query<IGeoPoint>(window)); }), E_NOTIMPL);
}

}  // namespace
