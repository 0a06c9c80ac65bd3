#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "kelifc/geo/ifc_server_object.h"

#include "tests/geo/failing_factory.h"
#include "tests/geo/host.h"
#include "tests/geo/model_text.h"
#include "tests/paths.h"

// The readings of the server object, and what each of them shows of an example.

namespace KelIFC {
namespace {

using Coordinates = std::array<double, 3>;

Coordinates PlaceOf(IGeoPoint& point) {
  Coordinates place = {};
  EXPECT_EQ(point.GetXYZ(&place[0], &place[1], &place[2]), S_OK);
  return place;
}

void ExpectPlace(const Coordinates& place, const Coordinates& wanted) {
  for (int i = 0; i < 3; ++i) EXPECT_NEAR(place[i], wanted[i], 1e-9) << "coordinate " << i;
}

template <class Collection, class Item>
ComPtr<Item> ItemAt(Collection& collection, LONG index,
                    HRESULT (Collection::*operation)(LONG, Item**)) {
  ComPtr<Item> item;
  EXPECT_EQ((collection.*operation)(index, item.Put()), S_OK);
  return item;
}

/// The item of a collection at an index from 1.
template <class Collection>
auto ItemOf(const ComPtr<Collection>& collection, LONG index) {
  return ItemAt(*collection, index, &Collection::Item);
}

std::vector<Coordinates> PlacesOf(const ComPtr<IGeoPoints>& points) {
  std::vector<Coordinates> places;
  for (LONG i = 1; i <= CountOf(*points); ++i) places.push_back(PlaceOf(*ItemOf(points, i)));
  return places;
}

template <class Element>
std::vector<Coordinates> PointsOfElement(const ComPtr<Element>& element) {
  return PlacesOf(GetObject(*element.template As<IGeoPolyline>(), &IGeoPolyline::get_Points));
}

class ServerReading : public HostTest {
 protected:
  void SetUp() override { Load("house.ifc"); }

  void Load(const std::string& name) {
    EXPECT_EQ(LoadFile(*server, std::string(kExamplesDir) + "/" + name), S_OK);
  }

  /// Chooses the complete reading and returns the structure.
  ComPtr<IGeoStructure> ReadCompletely() {
    EXPECT_EQ(reading->put_Reading(1), S_OK);
    return GetObject(*server, &IIFCServer::get_Structure);
  }

  ComPtr<IGeoElement> ElementOf(LONG index) {
    return ItemOf(GetObject(*reading, &IIFCServerReading::get_Elements), index);
  }

  void TearDown() override {
    reading.Reset();
    server.Reset();
    HostTest::TearDown();
  }

  ComPtr<IIFCServer> server = Create<IIFCServer>(CLSID_CoIFCServer);
  ComPtr<IIFCServerReading> reading = server.As<IIFCServerReading>();
};

TEST_F(ServerReading, IsClassicUntilAHostSetsIt) {
  EXPECT_EQ(GetValue(*reading, &IIFCServerReading::get_Reading), 0);
  EXPECT_EQ(reading->put_Reading(1), S_OK);
  EXPECT_EQ(GetValue(*reading, &IIFCServerReading::get_Reading), 1);
  EXPECT_EQ(reading->put_Reading(0), S_OK);
  EXPECT_EQ(GetValue(*reading, &IIFCServerReading::get_Reading), 0);
}

TEST_F(ServerReading, RefusesOtherValues) {
  EXPECT_EQ(reading->put_Reading(2), E_INVALIDARG);
  EXPECT_EQ(reading->put_Reading(-1), E_INVALIDARG);
  EXPECT_EQ(GetValue(*reading, &IIFCServerReading::get_Reading), 0);
  EXPECT_EQ(reading->get_Reading(nullptr), E_POINTER);
  EXPECT_EQ(reading->get_Elements(nullptr), E_POINTER);
  EXPECT_EQ(reading->get_Losses(nullptr), E_POINTER);
}

TEST_F(ServerReading, CannotBeSetAfterACollectionWasFetched) {
  const auto structure = GetObject(*server, &IIFCServer::get_Structure);
  GetObject(*reading, &IIFCServerReading::get_Elements);
  EXPECT_EQ(reading->put_Reading(1), S_OK);
  EXPECT_EQ(reading->put_Reading(0), S_OK);
  GetObject(*structure, &IGeoStructure::get_Storeys);
  EXPECT_EQ(reading->put_Reading(1), E_FAIL);
  EXPECT_EQ(GetValue(*reading, &IIFCServerReading::get_Reading), 0);
}

TEST_F(ServerReading, CannotBeSetAfterAnEmptyCollectionWasFetched) {
  const auto structure = GetObject(*server, &IIFCServer::get_Structure);
  GetObject(*structure, &IGeoStructure::get_Sections);
  EXPECT_EQ(reading->put_Reading(1), E_FAIL);
}

TEST_F(ServerReading, ElementsLeaveTheClassicStructureAsItIs) {
  GetObject(*reading, &IIFCServerReading::get_Elements);
  const auto structure = GetObject(*server, &IIFCServer::get_Structure);
  EXPECT_EQ(CountOf(*GetObject(*structure, &IGeoStructure::get_Foots)), 2);
  const auto plates = GetObject(*structure, &IGeoStructure::get_Plates);
  const auto holes = GetObject(*ItemOf(plates, 1), &IGeoPlate::get_Holes);
  EXPECT_EQ(GetText(*ItemOf(holes, 1), &IGeoHole::get_Name), L"Stair opening");
}

TEST_F(ServerReading, CompleteShowsStoreysInTheUnitOfTheFile) {
  const auto storeys = GetObject(*ReadCompletely(), &IGeoStructure::get_Storeys);
  ASSERT_EQ(CountOf(*storeys), 2);
  const auto lower = ItemOf(storeys, 1);
  EXPECT_EQ(GetText(*lower, &IGeoStorey::get_Name), L"Ground floor");
  EXPECT_EQ(GetValue(*lower, &IGeoStorey::get_Number), 0);
  EXPECT_DOUBLE_EQ(GetValue(*lower, &IGeoStorey::get_Height), 2.8);
  const auto upper = ItemOf(storeys, 2);
  EXPECT_EQ(GetValue(*upper, &IGeoStorey::get_Number), 1);
  EXPECT_DOUBLE_EQ(GetValue(*upper, &IGeoStorey::get_Level), 2.8);
  EXPECT_EQ(GetValue(*upper, &IGeoStorey::get_Height), 0.0);
}

TEST_F(ServerReading, CompleteShowsMembersByTheEndsOfTheirAxes) {
  const auto structure = ReadCompletely();
  const auto columns = GetObject(*structure, &IGeoStructure::get_Columns);
  ASSERT_EQ(CountOf(*columns), 2);
  const auto square = ItemOf(columns, 1);
  EXPECT_EQ(GetText(*square, &IGeoColumn::get_Name), L"Column A");
  EXPECT_EQ(GetText(*square, &IGeoColumn::get_SectionName), L"IFC_R_24x24");
  EXPECT_EQ(GetValue(*square, &IGeoColumn::get_StoreyNumber), 0);
  const auto ends = PointsOfElement(square);
  ASSERT_EQ(ends.size(), 2U);
  ExpectPlace(ends[0], {2.7, 3.12, 0});
  ExpectPlace(ends[1], {2.7, 3.12, 2.36});
  const auto round = ItemOf(columns, 2);
  EXPECT_EQ(GetText(*round, &IGeoColumn::get_Name), L"IFC#215");
  EXPECT_EQ(GetText(*round, &IGeoColumn::get_SectionName), L"IFC_C_24");
  const auto beams = GetObject(*structure, &IGeoStructure::get_Beams);
  ASSERT_EQ(CountOf(*beams), 1);
  ExpectPlace(PointsOfElement(ItemOf(beams, 1))[1], {7.76, 3.12, 2.48});
}

TEST_F(ServerReading, CompleteShowsWallsByADiagonalWithTheirOpenings) {
  const auto walls = GetObject(*ReadCompletely(), &IGeoStructure::get_Walls);
  ASSERT_EQ(CountOf(*walls), 6);
  const auto wall = ItemOf(walls, 1);
  EXPECT_EQ(GetText(*wall, &IGeoWall::get_SectionName), L"IFC_H_24");
  const auto corners = PointsOfElement(wall);
  ASSERT_EQ(corners.size(), 2U);
  EXPECT_NEAR(std::abs(corners[1][0] - corners[0][0]), 8.0, 1e-9);
  EXPECT_NEAR(corners[0][1], 0.12, 1e-9);
  EXPECT_NEAR(corners[1][1], 0.12, 1e-9);
  EXPECT_NEAR(corners[0][2], 0.0, 1e-9);
  EXPECT_NEAR(corners[1][2], 2.6, 1e-9);
  const auto windows = GetObject(*wall, &IGeoWall::get_Windows);
  const auto doors = GetObject(*wall, &IGeoWall::get_Doors);
  EXPECT_EQ(CountOf(*windows) + CountOf(*doors), 2);
  const auto window = ItemOf(windows, 1);
  EXPECT_EQ(GetValue(*window, &IGeoWindow::get_StoreyNumber), 0);
  const auto ends = PointsOfElement(window);
  ASSERT_EQ(ends.size(), 2U);
  EXPECT_LT(ends[0][2], ends[1][2]);
  EXPECT_NEAR(ends[0][1], 0.12, 1e-9);
}

TEST_F(ServerReading, CompleteShowsSlabsByTheirOutlinesInTheMiddlePlane) {
  const auto plates = GetObject(*ReadCompletely(), &IGeoStructure::get_Plates);
  ASSERT_EQ(CountOf(*plates), 2);
  const auto plate = ItemOf(plates, 1);
  const auto outline = PointsOfElement(plate);
  ASSERT_EQ(outline.size(), 4U);
  for (const Coordinates& corner : outline) EXPECT_NEAR(corner[2], 2.7, 1e-9);
  EXPECT_EQ(GetText(*plate, &IGeoPlate::get_SectionName), L"IFC_H_20");
  EXPECT_EQ(GetValue(*plate, &IGeoPlate::get_StoreyNumber), 1);
  const auto holes = GetObject(*plate, &IGeoPlate::get_Holes);
  ASSERT_EQ(CountOf(*holes), 1);
  const auto hole = ItemOf(holes, 1);
  EXPECT_EQ(GetText(*hole, &IGeoHole::get_Name), L"IFC#277");
  EXPECT_EQ(PointsOfElement(hole).size(), 4U);
}

TEST_F(ServerReading, CompleteLeavesOutWhatCouldNotBeRead) {
  EXPECT_EQ(CountOf(*GetObject(*ReadCompletely(), &IGeoStructure::get_Foots)), 0);
  const auto losses = GetObject(*reading, &IIFCServerReading::get_Losses);
  ASSERT_EQ(CountOf(*losses), 2);
  const auto loss = ItemOf(losses, 1);
  EXPECT_EQ(GetValue(*loss, &IGeoLoss::get_Id), 303);
  EXPECT_EQ(GetValue(*loss, &IGeoLoss::get_At), 303);
  EXPECT_EQ(GetText(*loss, &IGeoLoss::get_ClassName), L"IfcFooting");
  EXPECT_EQ(GetText(*loss, &IGeoLoss::get_Name), L"Pad 1");
  EXPECT_EQ(GetText(*loss, &IGeoLoss::get_GlobalId), L"2$I7n4Bj5NsuPS_hMV1Lss");
  EXPECT_EQ(GetText(*loss, &IGeoLoss::get_Reason), L"no-representation");
}

TEST_F(ServerReading, LossesHaveTheirLinesIfTheLoadKeptAReport) {
  EXPECT_EQ(server.As<IIFCServerOptions>()->put_Dialect(1), S_OK);
  Load("house.ifc");
  const auto losses = GetObject(*reading, &IIFCServerReading::get_Losses);
  EXPECT_EQ(GetValue(*ItemOf(losses, 1), &IGeoLoss::get_Line), 159);
}

TEST_F(ServerReading, ElementsHaveTheIdentifiersOfTheStructure) {
  const auto columns = GetObject(*ReadCompletely(), &IGeoStructure::get_Columns);
  const auto elements = GetObject(*reading, &IIFCServerReading::get_Elements);
  ASSERT_EQ(CountOf(*elements), 11);
  const auto column = ElementOf(5);
  EXPECT_EQ(GetText(*column, &IGeoElement::get_GlobalId), L"358FaCfmbQ2RX_K8ZTihha");
  EXPECT_EQ(GetText(*column, &IGeoElement::get_GUID),
            GetText(*ItemOf(columns, 1), &IGeoColumn::get_GUID));
  EXPECT_EQ(GetText(*column, &IGeoElement::get_StoreyName), L"Ground floor");
  EXPECT_EQ(GetValue(*column, &IGeoElement::get_StoreyNumber), 0);
  EXPECT_EQ(GetValue(*ElementOf(8), &IGeoElement::get_StoreyNumberByHeight), 1);
}

TEST_F(ServerReading, ElementsAreTheSameObjectsAtEveryCall) {
  EXPECT_EQ(ElementOf(1).Get(), ElementOf(1).Get());
  const auto column = ElementOf(5);
  EXPECT_EQ(GetObject(*column, &IGeoElement::get_Profile).Get(),
            GetObject(*column, &IGeoElement::get_Profile).Get());
}

TEST_F(ServerReading, ElementsOutliveTheServerObject) {
  const auto column = ElementOf(5);
  reading.Reset();
  server.Reset();
  EXPECT_EQ(GetText(*column, &IGeoElement::get_Name), L"Column A");
  const auto profile = GetObject(*column, &IGeoElement::get_Profile);
  EXPECT_NEAR(GetValue(*profile, &IGeoProfile::get_Area), 0.0576, 1e-12);
}

TEST_F(ServerReading, ASecondLoadIsReadIfNoHostAskedBefore) {
  EXPECT_EQ(GetValue(*ElementOf(1), &IGeoElement::get_Id), 116);
  EXPECT_EQ(reading->put_Reading(1), S_OK);
  const ModelFile file(ModelText("IFC2X3", ""));
  EXPECT_EQ(LoadFile(*server, file.Path()), S_OK);
  EXPECT_EQ(CountOf(*GetObject(*reading, &IIFCServerReading::get_Elements)), 11);
  EXPECT_EQ(CountOf(*GetObject(*reading, &IIFCServerReading::get_Losses)), 0);
  const auto structure = GetObject(*server, &IIFCServer::get_Structure);
  EXPECT_EQ(CountOf(*GetObject(*structure, &IGeoStructure::get_Columns)), 0);
}

TEST_F(ServerReading, AModelOfAnOldReleaseHasNoElements) {
  EXPECT_EQ(LoadFile(*server, std::string(kExamplesDir) + "/pavilion.ifc"), STG_E_FILENOTFOUND);
  EXPECT_EQ(CountOf(*GetObject(*reading, &IIFCServerReading::get_Elements)), 0);
}

TEST_F(ServerReading, AFailureIsReturnedOnceAndLaterCallsReturnWhatThereIs) {
  const auto structure = ReadCompletely();
  ComPtr<IGeoColumns> columns;
  ComPtr<IGeoElements> elements;
  {
    const FailingClass failingColumns(CLSID_CoGeoColumn, 1, E_OUTOFMEMORY);
    const FailingClass failingElements(CLSID_CoGeoElement, 3, E_OUTOFMEMORY);
    EXPECT_EQ(structure->get_Columns(columns.Put()), E_OUTOFMEMORY);
    EXPECT_EQ(reading->get_Elements(elements.Put()), E_OUTOFMEMORY);
    EXPECT_FALSE(columns);
    EXPECT_FALSE(elements);
  }
  EXPECT_EQ(CountOf(*GetObject(*structure, &IGeoStructure::get_Columns)), 1);
  EXPECT_EQ(CountOf(*GetObject(*reading, &IIFCServerReading::get_Elements)), 3);
}

}  // namespace
}  // namespace KelIFC
