#include "kelifc/geo/polyline_element.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "tests/geo/elements.h"
#include "tests/geo/failing_factory.h"
#include "tests/geo/host.h"

namespace KelIFC {
namespace {

template <class Class>
class PolylineObject : public HostTest {
 protected:
  void SetUp() override {
    element = CreateOwn<Class>();
    OwnOf<Class>(element).points.push_back(Point3(1, 2, 3));
    OwnOf<Class>(element).points.push_back(Point3(4, 5, 6));
    polyline = element.template As<IGeoPolyline>();
  }

  void TearDown() override {
    polyline.Reset();
    element.Reset();
    HostTest::TearDown();
  }

  ComPtr<typename Class::Interfaces::First> element;
  ComPtr<IGeoPolyline> polyline;
};
TYPED_TEST_SUITE(PolylineObject, PolylineClasses);

TYPED_TEST(PolylineObject, GivesItsPointsInOrder) {
  const auto points = GetObject(*this->polyline, &IGeoPolyline::get_Points);
  ASSERT_EQ(CountOf(*points), 2);
  ComPtr<IGeoPoint> second;
  ASSERT_EQ(points->Item(2, second.Put()), S_OK);
  EXPECT_EQ(Get(*second, &IGeoPoint::get_X), 4);
  EXPECT_EQ(Get(*second, &IGeoPoint::get_Y), 5);
  EXPECT_EQ(Get(*second, &IGeoPoint::get_Z), 6);
}

TYPED_TEST(PolylineObject, GivesTheSameCollectionAgain) {
  const auto first = GetObject(*this->polyline, &IGeoPolyline::get_Points);
  const auto second = GetObject(*this->polyline, &IGeoPolyline::get_Points);
  EXPECT_EQ(first.Get(), second.Get());
}

TYPED_TEST(PolylineObject, KeepsItsOwnPointsWhenAHostChangesThem) {
  const auto points = GetObject(*this->polyline, &IGeoPolyline::get_Points);
  ComPtr<IGeoPoint> point;
  ASSERT_EQ(points->Item(1, point.Put()), S_OK);
  EXPECT_EQ(point->put_X(99), S_OK);
  EXPECT_EQ(OwnOf<TypeParam>(this->element).points[0].x, 1);
  ComPtr<IGeoPoint> again;
  ASSERT_EQ(points->Item(1, again.Put()), S_OK);
  EXPECT_EQ(Get(*again, &IGeoPoint::get_X), 99);
}

TYPED_TEST(PolylineObject, TakesNoNullPointers) {
  EXPECT_EQ(this->polyline->get_Points(nullptr), E_POINTER);
}

TYPED_TEST(PolylineObject, KeepsItsPointsAliveWhenItIsGone) {
  const auto points = GetObject(*this->polyline, &IGeoPolyline::get_Points);
  this->polyline.Reset();
  this->element.Reset();
  EXPECT_EQ(CountOf(*points), 2);
}

TYPED_TEST(PolylineObject, KeepsThePointsThatItMadeBeforeAFailure) {
  IGeoPoints* none = nullptr;
  {
    const FailingClass failing(CLSID_CoGeoPoint, 1, E_OUTOFMEMORY);
    EXPECT_EQ(this->polyline->get_Points(&none), E_OUTOFMEMORY);
    EXPECT_EQ(none, nullptr);
  }
  const auto points = GetObject(*this->polyline, &IGeoPolyline::get_Points);
  EXPECT_EQ(CountOf(*points), 1);
}

TYPED_TEST(PolylineObject, TellsWhetherItIsClosed) {
  VARIANT_BOOL closed = 7;
  const HRESULT status = this->polyline->get_Closed(&closed);
  if constexpr (std::is_same_v<TypeParam, CoGeoWall>) {
    EXPECT_EQ(status, S_OK);
    EXPECT_EQ(closed, VARIANT_TRUE);
    EXPECT_EQ(this->polyline->get_Closed(nullptr), E_POINTER);
  } else if constexpr (std::is_same_v<TypeParam, CoGeoColumn> ||
                       std::is_same_v<TypeParam, CoGeoBeam> ||
                       std::is_same_v<TypeParam, CoGeoPlate>) {
    EXPECT_EQ(status, E_NOTIMPL);
    EXPECT_EQ(closed, 7);
  } else {
    EXPECT_EQ(status, S_OK);
    EXPECT_EQ(closed, VARIANT_FALSE);
    EXPECT_EQ(this->polyline->get_Closed(nullptr), E_POINTER);
  }
}

}  // namespace
}  // namespace KelIFC
