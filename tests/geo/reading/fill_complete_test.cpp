#include "kelifc/geo/reading/fill_complete.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <string>
#include <vector>

#include "kelifc/building/element_enums.h"
#include "kelifc/geo/storey_number.h"

#include "tests/geo/host.h"
#include "tests/geo/model_text.h"
#include "tests/model_files.h"
#include "tests/paths.h"

// What the complete reading shows of the examples, and of real models if there are any.

namespace KelIFC {
namespace {

template <class Collection, class Item>
std::vector<ComPtr<Item>> ItemsOf(Collection& collection,
                                  HRESULT (Collection::*operation)(LONG, Item**)) {
  std::vector<ComPtr<Item>> items(static_cast<std::size_t>(CountOf(collection)));
  LONG index = 0;
  for (ComPtr<Item>& item : items) EXPECT_EQ((collection.*operation)(++index, item.Put()), S_OK);
  return items;
}

/// The items of a collection of an object.
template <class Object, class Interface, class Collection>
auto ItemsOf(Object& object, HRESULT (Interface::*get)(Collection**)) {
  return ItemsOf(*GetObject(object, get), &Collection::Item);
}

class FillComplete : public HostTest {
 protected:
  /// Loads a model and chooses the complete reading.
  void Open(const std::string& path) {
    EXPECT_EQ(server.As<IIFCServerOptions>()->put_Dialect(STEP_DIALECT_ISO), S_OK);
    const HRESULT status = LoadFile(*server, path);
    isConverted = SUCCEEDED(status);
    EXPECT_EQ(reading->put_Reading(1), S_OK);
    structure = GetObject(*server, &IIFCServer::get_Structure);
  }

  void TearDown() override {
    structure.Reset();
    reading.Reset();
    server.Reset();
    HostTest::TearDown();
  }

  bool isConverted = false;
  ComPtr<IIFCServer> server = Create<IIFCServer>(CLSID_CoIFCServer);
  ComPtr<IIFCServerReading> reading = server.As<IIFCServerReading>();
  ComPtr<IGeoStructure> structure;
};

void ExpectFinite(IGeoPoint& point) {
  double place[3] = {};
  ASSERT_EQ(point.GetXYZ(&place[0], &place[1], &place[2]), S_OK);
  for (const double coordinate : place) ASSERT_TRUE(std::isfinite(coordinate));
}

/// Expects at least `least` points, and a section.
template <class Element>
void ExpectUsable(const ComPtr<Element>& element, std::size_t least) {
  const auto points = ItemsOf(*element.template As<IGeoPolyline>(), &IGeoPolyline::get_Points);
  ASSERT_GE(points.size(), least);
  for (const auto& point : points) ExpectFinite(*point);
  ASSERT_NE(GetText(*element, &IGeoObject::get_SectionName), L"");
  ASSERT_NE(GetText(*element, &IGeoObject::get_Name), L"");
  GetValue(*element, &IGeoObject::get_StoreyNumber);
}

TEST_F(FillComplete, ShowsAllFootingsAtTheCentresOfTheirLowerFaces) {
  Open(std::string(kExamplesDir) + "/hall.ifc");
  const auto foots = ItemsOf(*structure, &IGeoStructure::get_Foots);
  ASSERT_EQ(foots.size(), 4U);
  EXPECT_EQ(GetText(*foots[3], &IGeoFoot::get_Name), L"Cap");
  for (const auto& element : ItemsOf(*reading, &IIFCServerReading::get_Elements)) {
    if (GetText(*element, &IGeoElement::get_Name) != L"Pad 1") continue;
    const auto low = GetObject(*element, &IGeoElement::get_BoxMin);
    const auto high = GetObject(*element, &IGeoElement::get_BoxMax);
    const auto place = foots[0].As<IGeoPoint>();
    EXPECT_EQ(GetValue(*place, &IGeoPoint::get_Z), GetValue(*low, &IGeoPoint::get_Z));
    EXPECT_NEAR(2.0 * GetValue(*place, &IGeoPoint::get_X),
                GetValue(*low, &IGeoPoint::get_X) + GetValue(*high, &IGeoPoint::get_X), 1e-9);
  }
}

TEST_F(FillComplete, LeavesBodiesToTheElements) {
  Open(std::string(kExamplesDir) + "/hall.ifc");
  EXPECT_EQ(ItemsOf(*structure, &IGeoStructure::get_Columns).size(), 6U);
  std::size_t bodies = 0;
  for (const auto& element : ItemsOf(*reading, &IIFCServerReading::get_Elements)) {
    if (GetText(*element, &IGeoElement::get_Kind) != L"body") continue;
    ++bodies;
    const auto boundary = GetObject(*element, &IGeoElement::get_Boundary);
    EXPECT_GE(ItemsOf(*boundary, &IGeoBRep::get_Faces).size(), 4U);
  }
  EXPECT_EQ(bodies, 3U);
}

TEST_F(FillComplete, FindsTheSectionsOfMembersByTheirProfiles) {
  Open(std::string(kExamplesDir) + "/hall.ifc");
  const auto columns = ItemsOf(*structure, &IGeoStructure::get_Columns);
  ASSERT_EQ(columns.size(), 6U);
  EXPECT_EQ(GetText(*columns[0], &IGeoColumn::get_SectionName), L"IFC_C_30.5");
  EXPECT_EQ(GetText(*columns[2], &IGeoColumn::get_SectionName).substr(0, 6), L"IFC_T_");
  EXPECT_EQ(GetText(*columns[4], &IGeoColumn::get_SectionName).substr(0, 6), L"IFC_N6");
}

TEST_F(FillComplete, MeasuresLevelsInTheUnitOfTheFile) {
  Open(std::string(kExamplesDir) + "/hall.ifc");
  const auto storeys = ItemsOf(*structure, &IGeoStructure::get_Storeys);
  ASSERT_EQ(storeys.size(), 2U);
  EXPECT_NEAR(GetValue(*storeys[0], &IGeoStorey::get_Level), 36.0, 1e-9);
  EXPECT_NEAR(GetValue(*storeys[0], &IGeoStorey::get_Height), 168.0, 1e-9);
}

class FillCompleteOfModel : public FillComplete,
                            public testing::WithParamInterface<std::filesystem::path> {};

TEST_P(FillCompleteOfModel, ShowsElementsThatCanBeUsed) {
  Open(GetParam().string());
  if (!isConverted) GTEST_SKIP() << "this release is not converted";
  std::size_t shown = 0;
  const auto expect = [&](const auto& elements, std::size_t least) {
    shown += elements.size();
    for (const auto& element : elements) ExpectUsable(element, least);
  };
  expect(ItemsOf(*structure, &IGeoStructure::get_Columns), 2);
  expect(ItemsOf(*structure, &IGeoStructure::get_Beams), 2);
  expect(ItemsOf(*structure, &IGeoStructure::get_Walls), 2);
  expect(ItemsOf(*structure, &IGeoStructure::get_Plates), 3);
  for (const auto& foot : ItemsOf(*structure, &IGeoStructure::get_Foots)) {
    ++shown;
    ExpectFinite(*foot.template As<IGeoPoint>());
  }
  EXPECT_LE(shown, ItemsOf(*reading, &IIFCServerReading::get_Elements).size());
  for (const auto& loss : ItemsOf(*reading, &IIFCServerReading::get_Losses)) {
    EXPECT_NE(GetText(*loss, &IGeoLoss::get_Reason), L"");
    EXPECT_GT(GetValue(*loss, &IGeoLoss::get_Line), 0);
  }
}

INSTANTIATE_TEST_SUITE_P(Models, FillCompleteOfModel, testing::ValuesIn(ExamplesAndRealModels()),
                         TestNameOf);

}  // namespace
}  // namespace KelIFC
