#include "kelifc/geometry/triangle.h"

#include "tests/geometry/points.h"

namespace KelIFC {
namespace {

TEST(Triangle, IsDegenerateWithAShortSide) {
  EXPECT_TRUE(IsDegenerateTriangle(Point2(0, 0), Point2(0.1, 0), Point2(5, 5), 0.2));
  EXPECT_FALSE(IsDegenerateTriangle(Point2(0, 0), Point2(1, 0), Point2(0, 1), 0.2));
}

TEST(Triangle, IsDegenerateWithASmallHeight) {
  EXPECT_TRUE(IsDegenerateTriangle(Point2(0, 0), Point2(10, 0), Point2(5, 0.1), 0.2));
  EXPECT_TRUE(IsDegenerateTriangle(Point3(0, 0, 0), Point3(10, 0, 0), Point3(5, 0, 0.1), 0.2));
  EXPECT_FALSE(IsDegenerateTriangle(Point3(0, 0, 0), Point3(10, 0, 0), Point3(5, 0, 0.3), 0.2));
}

TEST(Triangle, IsDegenerateIfItIsAPoint) {
  EXPECT_TRUE(IsDegenerateTriangle(Point3(), Point3(), Point3(), 1e-7));
}

TEST(Triangle, HasATwiceAreaWithASign) {
  EXPECT_EQ(SignedTwiceArea(Point2(0, 0), Point2(2, 0), Point2(0, 3)), 6);
  EXPECT_EQ(SignedTwiceArea(Point2(0, 0), Point2(0, 3), Point2(2, 0)), -6);
}

TEST(Triangle, TurnsCounterClockwiseForMinusOne) {
  const Point2 a(0, 0);
  const Point2 b(10, 0);
  EXPECT_EQ(TriangleOrientation(a, b, Point2(5, 1), 0.2), -1);
  EXPECT_EQ(TriangleOrientation(a, b, Point2(5, -1), 0.2), 1);
  EXPECT_EQ(TriangleOrientation(a, b, Point2(5, 0.1), 0.2), 0);
}

TEST(Triangle, HasNoOrientationIfItIsAPoint) {
  EXPECT_EQ(TriangleOrientation(Point2(), Point2(0.1, 0), Point2(0, 0.1), 0.2), 0);
  EXPECT_EQ(TriangleOrientation(Point2(), Point2(), Point2(), 0.0), 0);
}

}  // namespace
}  // namespace KelIFC
