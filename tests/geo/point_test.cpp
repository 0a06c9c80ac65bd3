#include "kelifc/geo/point.h"

#include <gtest/gtest.h>

#include "tests/geo/elements.h"
#include "tests/geo/host.h"

namespace KelIFC {
namespace {

template <class Class>
class LocatedClass : public HostTest {
 protected:
  void SetUp() override { point = CreateOwn<Class>().template As<IGeoPoint>(); }
  void TearDown() override {
    point.Reset();
    HostTest::TearDown();
  }

  ComPtr<IGeoPoint> point;
};
using Located = testing::Types<CoGeoPoint, CoGeoFoot>;
TYPED_TEST_SUITE(LocatedClass, Located);

TYPED_TEST(LocatedClass, IsAtTheOriginWhenNew) {
  double x = 1;
  double y = 1;
  double z = 1;
  EXPECT_EQ(this->point->GetXYZ(&x, &y, &z), S_OK);
  EXPECT_EQ(x, 0);
  EXPECT_EQ(y, 0);
  EXPECT_EQ(z, 0);
}

TYPED_TEST(LocatedClass, KeepsEachCoordinate) {
  EXPECT_EQ(this->point->put_X(1), S_OK);
  EXPECT_EQ(this->point->put_Y(2), S_OK);
  EXPECT_EQ(this->point->put_Z(3), S_OK);
  EXPECT_EQ(Get(*this->point, &IGeoPoint::get_X), 1);
  EXPECT_EQ(Get(*this->point, &IGeoPoint::get_Y), 2);
  EXPECT_EQ(Get(*this->point, &IGeoPoint::get_Z), 3);
  EXPECT_EQ(this->point->SetXYZ(4, 5, 6), S_OK);
  EXPECT_EQ(Get(*this->point, &IGeoPoint::get_Y), 5);
}

TYPED_TEST(LocatedClass, TakesNoNullPointers) {
  double value = 0;
  EXPECT_EQ(this->point->get_X(nullptr), E_POINTER);
  EXPECT_EQ(this->point->get_Y(nullptr), E_POINTER);
  EXPECT_EQ(this->point->get_Z(nullptr), E_POINTER);
  EXPECT_EQ(this->point->GetXYZ(nullptr, &value, &value), E_POINTER);
  EXPECT_EQ(this->point->GetXYZ(&value, nullptr, &value), E_POINTER);
  EXPECT_EQ(this->point->GetXYZ(&value, &value, nullptr), E_POINTER);
}

}  // namespace
}  // namespace KelIFC
