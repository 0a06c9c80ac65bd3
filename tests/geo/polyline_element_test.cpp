#include "kelifc/geo/polyline_element.h"

#include <gtest/gtest.h>

#include "tests/geo/elements.h"
#include "tests/geo/failing_factory.h"

namespace KelIFC {
namespace {

template <class Class>
class EachPolyline : public HostTest {
 protected:
  void TearDown() override {
    polyline.Reset();
    element.Reset();
    HostTest::TearDown();
  }

  /// Adds the points (1,0,0), (2,0,0) ... to the element.
  void AddPoints(int count) {
    Mvector<Point3>& points = ObjectOf<Class>(element).points;
    for (int i = 1; i <= count; ++i) points.push_back(Point3(i, 0, 0));
  }

  ComPtr<IGeoPoints> Points() { return GetObject(*polyline, &IGeoPolyline::get_Points); }

  ComPtr<IGeoPoint> PointAt(LONG index) {
    ComPtr<IGeoPoint> point;
    EXPECT_EQ(Points()->Item(index, point.Put()), S_OK);
    return point;
  }

  decltype(CreateOwn<Class>()) element = CreateOwn<Class>();
  ComPtr<IGeoPolyline> polyline = element.template As<IGeoPolyline>();
};

TYPED_TEST_SUITE(EachPolyline, PolylineClasses);

TYPED_TEST(EachPolyline, HasNoPointsAtFirst) { EXPECT_EQ(CountOf(*this->Points()), 0); }

TYPED_TEST(EachPolyline, ShowsItsPointsInTheirOrder) {
  this->AddPoints(3);
  ASSERT_EQ(CountOf(*this->Points()), 3);
  for (LONG i = 1; i <= 3; ++i) {
    EXPECT_EQ(GetValue(*this->PointAt(i), &IGeoPoint::get_X), static_cast<double>(i));
  }
}

TYPED_TEST(EachPolyline, CreatesItsPointsOnce) {
  this->AddPoints(1);
  const auto points = this->Points();
  this->AddPoints(1);
  EXPECT_EQ(this->Points().Get(), points.Get());
  EXPECT_EQ(CountOf(*points), 1);
}

TYPED_TEST(EachPolyline, KeepsChangesOfAHostInACopyOfItsPoints) {
  this->AddPoints(1);
  this->PointAt(1)->put_X(7);
  EXPECT_EQ(GetValue(*this->PointAt(1), &IGeoPoint::get_X), 7.0);
  EXPECT_EQ(ObjectOf<TypeParam>(this->element).points[0].x, 1.0);
}

TYPED_TEST(EachPolyline, RefusesANullOutput) {
  EXPECT_EQ(this->polyline->get_Points(nullptr), E_POINTER);
}

TYPED_TEST(EachPolyline, KeepsTheCollectionThatCouldNotBeFilled) {
  this->AddPoints(3);
  auto* out = reinterpret_cast<IGeoPoints*>(this);
  {
    const FailingClass failing(CLSID_CoGeoPoint, 2, DISP_E_OVERFLOW);
    EXPECT_EQ(this->polyline->get_Points(&out), DISP_E_OVERFLOW);
    EXPECT_EQ(out, nullptr);
  }
  EXPECT_EQ(CountOf(*this->Points()), 2);
}

TYPED_TEST(EachPolyline, KeepsTheCollectionWhosePointsHaveNoClassObject) {
  this->AddPoints(3);
  {
    const MissingClass missing(CLSID_CoGeoPoint);
    ComPtr<IGeoPoints> out;
    EXPECT_EQ(this->polyline->get_Points(out.Put()), E_NOINTERFACE);
    EXPECT_FALSE(out);
  }
  EXPECT_EQ(CountOf(*this->Points()), 0);
}

TYPED_TEST(EachPolyline, TriesAgainToCreateTheCollection) {
  this->AddPoints(3);
  {
    const FailingClass failing(CLSID_CoGeoPoints, 0, DISP_E_OVERFLOW);
    ComPtr<IGeoPoints> out;
    EXPECT_EQ(this->polyline->get_Points(out.Put()), DISP_E_OVERFLOW);
  }
  EXPECT_EQ(CountOf(*this->Points()), 3);
}

TYPED_TEST(EachPolyline, LeavesPointsUsableAfterItsEnd) {
  this->AddPoints(2);
  auto points = this->Points();
  const auto point = this->PointAt(2);
  this->polyline.Reset();
  this->element.Reset();
  EXPECT_EQ(CountOf(*points), 2);
  points.Reset();
  EXPECT_EQ(GetValue(*point, &IGeoPoint::get_X), 2.0);
}

TYPED_TEST(EachPolyline, ReservesTheOtherOperation) {
  EXPECT_EQ(this->polyline->Reserved3(0), E_NOTIMPL);
}

class Closed : public HostTest {};

/// Returns what get_Closed of an element stores.
template <class Class>
HRESULT AskClosed(VARIANT_BOOL* out) {
  return CreateOwn<Class>().template As<IGeoPolyline>()->get_Closed(out);
}

template <class Class>
VARIANT_BOOL IsClosed() {
  VARIANT_BOOL closed = 7;
  EXPECT_EQ(AskClosed<Class>(&closed), S_OK);
  EXPECT_EQ(AskClosed<Class>(nullptr), E_POINTER);
  return closed;
}

TEST_F(Closed, IsTrueForAWall) { EXPECT_EQ(IsClosed<CoGeoWall>(), -1); }

TEST_F(Closed, IsFalseForOpenings) {
  EXPECT_EQ(IsClosed<CoGeoWindow>(), 0);
  EXPECT_EQ(IsClosed<CoGeoDoor>(), 0);
  EXPECT_EQ(IsClosed<CoGeoHole>(), 0);
}

TEST_F(Closed, IsReservedForColumnsBeamsAndPlates) {
  VARIANT_BOOL closed = 7;
  EXPECT_EQ(AskClosed<CoGeoColumn>(&closed), E_NOTIMPL);
  EXPECT_EQ(AskClosed<CoGeoBeam>(&closed), E_NOTIMPL);
  EXPECT_EQ(AskClosed<CoGeoPlate>(&closed), E_NOTIMPL);
  EXPECT_EQ(AskClosed<CoGeoColumn>(nullptr), E_NOTIMPL);
  EXPECT_EQ(closed, 7);
}

}  // namespace
}  // namespace KelIFC
