#include "kelifc/geo/openings.h"

#include <gtest/gtest.h>

#include "tests/geo/elements.h"
#include "tests/geo/failing_factory.h"
#include "tests/geo/host.h"

namespace KelIFC {
namespace {

class WallObject : public HostTest {};

TEST_F(WallObject, IsNeverOpen) {
  const auto wall = CreateOwn<CoGeoWall>();
  EXPECT_EQ(Get(*wall, &IGeoWall::get_IsOpen), VARIANT_FALSE);
  EXPECT_EQ(wall->get_IsOpen(nullptr), E_POINTER);
}

TEST_F(WallObject, HasEmptyCollectionsThatItKeeps) {
  const auto wall = CreateOwn<CoGeoWall>();
  const auto windows = GetObject(*wall, &IGeoWall::get_Windows);
  EXPECT_EQ(CountOf(*windows), 0);
  EXPECT_EQ(GetObject(*wall, &IGeoWall::get_Windows).Get(), windows.Get());
  const auto doors = GetObject(*wall, &IGeoWall::get_Doors);
  EXPECT_EQ(CountOf(*doors), 0);
  EXPECT_EQ(GetObject(*wall, &IGeoWall::get_Doors).Get(), doors.Get());
  EXPECT_EQ(wall->get_Windows(nullptr), E_POINTER);
  EXPECT_EQ(wall->get_Doors(nullptr), E_POINTER);
}

TEST_F(WallObject, TellsAFailureToMakeACollection) {
  const auto wall = CreateOwn<CoGeoWall>();
  const FailingClass failing(CLSID_CoGeoDoors, 0, E_OUTOFMEMORY);
  IGeoDoors* doors = nullptr;
  EXPECT_EQ(wall->get_Doors(&doors), E_OUTOFMEMORY);
  EXPECT_EQ(doors, nullptr);
}

TEST_F(WallObject, ShowsWhatIsAddedToItsCollection) {
  const auto wall = CreateOwn<CoGeoWall>();
  const auto windows = GetObject(*wall, &IGeoWall::get_Windows);
  static_cast<CoGeoWindows&>(*windows).Append(CreateOwn<CoGeoWindow>());
  EXPECT_EQ(CountOf(*GetObject(*wall, &IGeoWall::get_Windows)), 1);
}

class PlateObject : public HostTest {};

TEST_F(PlateObject, HasAnEmptyCollectionOfHolesThatItKeeps) {
  const auto plate = CreateOwn<CoGeoPlate>();
  const auto holes = GetObject(*plate, &IGeoPlate::get_Holes);
  EXPECT_EQ(CountOf(*holes), 0);
  EXPECT_EQ(GetObject(*plate, &IGeoPlate::get_Holes).Get(), holes.Get());
  EXPECT_EQ(plate->get_Holes(nullptr), E_POINTER);
}

template <class Class>
class PointLikeOpening : public HostTest {};
using PointLike = testing::Types<CoGeoWindow, CoGeoDoor>;
TYPED_TEST_SUITE(PointLikeOpening, PointLike);

TYPED_TEST(PointLikeOpening, HasThePointInterfaceWithoutItsOperations) {
  const auto point = CreateOwn<TypeParam>().template As<IGeoPoint>();
  ASSERT_TRUE(point);
  double value = 7;
  EXPECT_EQ(point->get_X(&value), E_NOTIMPL);
  EXPECT_EQ(point->put_X(1), E_NOTIMPL);
  EXPECT_EQ(point->get_Y(&value), E_NOTIMPL);
  EXPECT_EQ(point->put_Y(1), E_NOTIMPL);
  EXPECT_EQ(point->get_Z(&value), E_NOTIMPL);
  EXPECT_EQ(point->put_Z(1), E_NOTIMPL);
  EXPECT_EQ(point->SetXYZ(1, 2, 3), E_NOTIMPL);
  EXPECT_EQ(point->GetXYZ(&value, &value, &value), E_NOTIMPL);
  EXPECT_EQ(value, 7);
}

}  // namespace
}  // namespace KelIFC
