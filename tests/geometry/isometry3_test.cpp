#include "kelifc/geometry/isometry3.h"

#include <random>

#include "tests/geometry/points.h"

namespace KelIFC {
namespace {

TEST(Isometry, IsTheIdentityAtFirst) {
  const Isometry3 identity;
  EXPECT_EQ(identity.isFrame, 1);
  EXPECT_EQ(identity.tolerance, 1e-10);
  EXPECT_THAT(identity.Apply(Point3(1, 2, 3)), IsNear3(1, 2, 3));
}

TEST(Isometry, IsBuiltFromThreePoints) {
  const Isometry3 frame(Point3(10, 0, 0), Point3(10, 5, 0), Point3(3, 9, 0));
  EXPECT_EQ(frame.isFrame, 1);
  EXPECT_THAT(frame.xAxis, IsNear3(0, 1, 0));
  EXPECT_THAT(frame.yAxis, IsNear3(-1, 0, 0));
  EXPECT_THAT(frame.zAxis, IsNear3(0, 0, 1));
  EXPECT_THAT(frame.Apply(Point3(1, 2, 3)), IsNear3(8, 1, 3));
}

TEST(Isometry, RotatesAVectorWithoutTranslation) {
  const Isometry3 frame(Point3(10, 0, 0), Point3(10, 5, 0), Point3(3, 9, 0));
  EXPECT_THAT(frame.Apply(Vector3(1, 2, 3)), IsNear3(-2, 1, 3));
}

TEST(Isometry, IsATranslationForCoincidentPoints) {
  const Isometry3 frame(Point3(1, 2, 3), Point3(1, 2, 3), Point3(5, 5, 5));
  EXPECT_EQ(frame.isFrame, 0);
  EXPECT_THAT(frame.translation, IsNear3(1, 2, 3));
  EXPECT_THAT(frame.xAxis, IsNear3(1, 0, 0));
  EXPECT_THAT(frame.yAxis, IsNear3(0, 1, 0));
  EXPECT_THAT(frame.zAxis, IsNear3(0, 0, 1));
}

TEST(Isometry, IsATranslationForPointsOnALine) {
  const Isometry3 frame(Point3(1, 2, 3), Point3(2, 3, 4), Point3(3, 4, 5));
  EXPECT_EQ(frame.isFrame, 0);
  EXPECT_THAT(frame.Apply(Point3(1, 1, 1)), IsNear3(2, 3, 4));
}

TEST(Isometry, KeepsItsToleranceWhenItIsSetAgain) {
  Isometry3 frame;
  frame.tolerance = 2;
  frame.Set(Point3(), Point3(1, 0, 0), Point3(0, 1, 0));
  EXPECT_EQ(frame.isFrame, 0);
  EXPECT_EQ(frame.tolerance, 2);
  frame.Set(Point3(), Point3(3, 0, 0), Point3(0, 3, 0));
  EXPECT_EQ(frame.isFrame, 1);
}

TEST(Isometry, TransformsPointsInPlace) {
  auto points = Points3({{0, 0, 0}, {1, 0, 0}});
  Isometry3(Point3(10, 0, 0), Point3(10, 5, 0), Point3(3, 9, 0)).Apply(points);
  EXPECT_THAT(points[0], IsNear3(10, 0, 0));
  EXPECT_THAT(points[1], IsNear3(10, 1, 0));
}

TEST(Isometry, IsUndoneByItsInverse) {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> within(-10, 10);
  const auto any = [&] { return Point3(within(random), within(random), within(random)); };
  for (int i = 0; i < 1000; ++i) {
    const Isometry3 frame(any(), any(), any());
    const Point3 point = any();
    EXPECT_LT(Length(frame.InverseApply(frame.Apply(point)) - point), 1e-12);
  }
}

}  // namespace
}  // namespace KelIFC
