#ifndef KELIFC_TESTS_IMPORT_STRUCTURE_READER_H_
#define KELIFC_TESTS_IMPORT_STRUCTURE_READER_H_

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "kelifc/core/mvector.h"
#include "kelifc/geometry/point.h"

#include "tests/import/model_builder.h"
#include "tests/import/release_test.h"

namespace KelIFC {

/// The x, y and z of a point.
using Coordinates = std::array<double, 3>;

/// Matches Coordinates with a tolerance of 1e-9 for each coordinate.
inline auto IsAt(double x, double y, double z) {
  return testing::Pointwise(testing::DoubleNear(1e-9), Coordinates{x, y, z});
}

/// Returns the points of an element through its interfaces.
template <class Element>
std::vector<Coordinates> PointsOf(Element& element) {
  ComPtr<IGeoPolyline> polyline;
  EXPECT_EQ(element.QueryInterface(IidOf<IGeoPolyline>(), reinterpret_cast<void**>(polyline.Put())),
            S_OK);
  const auto points = GetObject(*polyline, &IGeoPolyline::get_Points);
  std::vector<Coordinates> read;
  for (LONG i = 1; i <= CountOf(*points); ++i) {
    ComPtr<IGeoPoint> point;
    EXPECT_EQ(points->Item(i, point.Put()), S_OK);
    Coordinates at = {};
    EXPECT_EQ(point->GetXYZ(&at[0], &at[1], &at[2]), S_OK);
    read.push_back(at);
  }
  return read;
}

/// Returns all items of a collection.
template <class Item, class Collection>
std::vector<ComPtr<Item>> ItemsOf(Collection& collection) {
  std::vector<ComPtr<Item>> items;
  for (LONG i = 1; i <= CountOf(collection); ++i) {
    ComPtr<Item> item;
    EXPECT_EQ(collection.Item(i, item.Put()), S_OK);
    items.push_back(std::move(item));
  }
  return items;
}

/// Returns the only element of a list. The test fails if there are none or several.
template <class Element>
ComPtr<Element> Only(const std::vector<ComPtr<Element>>& elements) {
  EXPECT_EQ(elements.size(), 1u);
  return elements.at(0);
}

/// A test that builds a model, converts it, and reads the structure through its interfaces.
template <class Release>
class ConversionTest : public ReleaseTest<Release> {
 protected:
  void TearDown() override {
    structure.Reset();
    server.Reset();
    HostTest::TearDown();
  }

  /// Loads `model` as it is now. Call it once in a test.
  void Convert() {
    server = this->Load(model.Data());
    structure = GetObject(*server, &IIFCServer::get_Structure);
  }

  std::vector<ComPtr<IGeoColumn>> GetColumns() {
    return ItemsOf<IGeoColumn>(*GetObject(*structure, &IGeoStructure::get_Columns));
  }
  std::vector<ComPtr<IGeoBeam>> GetBeams() {
    return ItemsOf<IGeoBeam>(*GetObject(*structure, &IGeoStructure::get_Beams));
  }
  std::vector<ComPtr<IGeoWall>> GetWalls() {
    return ItemsOf<IGeoWall>(*GetObject(*structure, &IGeoStructure::get_Walls));
  }
  std::vector<ComPtr<IGeoPlate>> GetPlates() {
    return ItemsOf<IGeoPlate>(*GetObject(*structure, &IGeoStructure::get_Plates));
  }
  std::vector<ComPtr<IGeoFoot>> GetFoots() {
    return ItemsOf<IGeoFoot>(*GetObject(*structure, &IGeoStructure::get_Foots));
  }

  /// Returns the names of the sections that exist so far, in the order of the collection.
  std::vector<std::wstring> SectionNames() {
    const auto sections = GetObject(*structure, &IGeoStructure::get_Sections);
    std::vector<std::wstring> names;
    for (LONG i = 1; i <= CountOf(*sections); ++i) {
      ComPtr<IGeoSection> section;
      EXPECT_EQ(sections->ItemByIndex(i, section.Put()), S_OK);
      names.push_back(GetText(*section, &IGeoSection::get_Name));
    }
    return names;
  }

  template <class Element>
  static std::wstring NameOf(Element& element) {
    return GetText(element, &IGeoObject::get_Name);
  }

  template <class Element>
  static std::wstring SectionOf(Element& element) {
    return GetText(element, &IGeoObject::get_SectionName);
  }

  template <class Element>
  static std::vector<std::wstring> NamesOf(const std::vector<ComPtr<Element>>& elements) {
    std::vector<std::wstring> names;
    for (const auto& element : elements) names.push_back(NameOf(*element));
    return names;
  }

  ModelBuilder model;
  ComPtr<IIFCServer> server;
  ComPtr<IGeoStructure> structure;
};

}  // namespace KelIFC

#endif  // KELIFC_TESTS_IMPORT_STRUCTURE_READER_H_
