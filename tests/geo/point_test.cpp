#include "kelifc/geo/point.h"

#include <gtest/gtest.h>

#include "tests/geo/elements.h"

namespace KelIFC {
namespace {

/// A class with a location: a point, or an element with one point.
template <class Class>
class Located : public HostTest {
 protected:
  ComPtr<IGeoPoint> MakePoint() { return CreateOwn<Class>().template As<IGeoPoint>(); }
};

using LocatedClasses = testing::Types<CoGeoPoint, CoGeoFoot>;
TYPED_TEST_SUITE(Located, LocatedClasses);

TYPED_TEST(Located, IsAtTheOriginAtFirst) {
  const auto point = this->MakePoint();
  double x = 7;
  double y = 7;
  double z = 7;
  EXPECT_EQ(point->GetXYZ(&x, &y, &z), S_OK);
  EXPECT_EQ(x, 0.0);
  EXPECT_EQ(y, 0.0);
  EXPECT_EQ(z, 0.0);
}

TYPED_TEST(Located, KeepsEachCoordinate) {
  const auto point = this->MakePoint();
  EXPECT_EQ(point->put_X(1), S_OK);
  EXPECT_EQ(point->put_Y(2), S_OK);
  EXPECT_EQ(point->put_Z(3), S_OK);
  EXPECT_EQ(GetValue(*point, &IGeoPoint::get_X), 1.0);
  EXPECT_EQ(GetValue(*point, &IGeoPoint::get_Y), 2.0);
  EXPECT_EQ(GetValue(*point, &IGeoPoint::get_Z), 3.0);
}

TYPED_TEST(Located, SetsAndReturnsAllCoordinates) {
  const auto point = this->MakePoint();
  EXPECT_EQ(point->SetXYZ(1, 2, 3), S_OK);
  double x = 0;
  double y = 0;
  double z = 0;
  EXPECT_EQ(point->GetXYZ(&x, &y, &z), S_OK);
  EXPECT_EQ(x, 1.0);
  EXPECT_EQ(y, 2.0);
  EXPECT_EQ(z, 3.0);
}

TYPED_TEST(Located, RefusesNullOutputs) {
  const auto point = this->MakePoint();
  double place = 7;
  EXPECT_EQ(point->get_X(nullptr), E_POINTER);
  EXPECT_EQ(point->get_Y(nullptr), E_POINTER);
  EXPECT_EQ(point->get_Z(nullptr), E_POINTER);
  EXPECT_EQ(point->GetXYZ(nullptr, &place, &place), E_POINTER);
  EXPECT_EQ(point->GetXYZ(&place, nullptr, &place), E_POINTER);
  EXPECT_EQ(point->GetXYZ(&place, &place, nullptr), E_POINTER);
  EXPECT_EQ(place, 7.0);
}

class Foot : public HostTest {};

TEST_F(Foot, IsAtItsLocation) {
  const auto foot = CreateOwn<CoGeoFoot>();
  ObjectOf<CoGeoFoot>(foot).location = Point3(1, 2, 3);
  EXPECT_EQ(GetValue(*foot.As<IGeoPoint>(), &IGeoPoint::get_Y), 2.0);
}

TEST_F(Foot, HasNoPolyline) { EXPECT_FALSE(CreateOwn<CoGeoFoot>().As<IGeoPolyline>()); }

TEST_F(Foot, ReservesTheOtherOperations) {
  const auto foot = CreateOwn<CoGeoFoot>();
  EXPECT_EQ(foot->Reserved16(nullptr), E_NOTIMPL);
  EXPECT_EQ(foot->Reserved17(0.0), E_NOTIMPL);
  EXPECT_EQ(foot->Reserved19(0), E_NOTIMPL);
  EXPECT_EQ(foot->Reserved31(nullptr), E_NOTIMPL);
}

}  // namespace
}  // namespace KelIFC
