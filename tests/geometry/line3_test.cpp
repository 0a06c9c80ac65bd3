#include "kelifc/geometry/line3.h"

#include "kelifc/geometry/constants.h"
#include "kelifc/geometry/plane3.h"

#include "tests/geometry/points.h"

namespace KelIFC {
namespace {

TEST(Line, IsTestedOnce) {
  Line3 line(Point3(), Vector3(3, 4, 0), 0.001);
  EXPECT_EQ(line.state, 0);
  EXPECT_TRUE(line.IsValid());
  EXPECT_EQ(line.state, 1);
  EXPECT_EQ(line.squaredLength, 25);
  line.direction = Vector3();
  EXPECT_TRUE(line.IsValid());
}

TEST(Line, IsDegenerateBelowItsTolerance) {
  EXPECT_FALSE(Line3(Point3(), Vector3(), 0.001).IsValid());
  EXPECT_FALSE(Line3(Point3(), Vector3(0.0009, 0, 0), 0.001).IsValid());
  EXPECT_TRUE(Line3(Point3(), Vector3(0.001, 0, 0), 0.001).IsValid());
  EXPECT_TRUE(Line3(Point3(), Vector3(), 0.0).IsValid());
}

TEST(Line, TreatsANegativeToleranceAsTheDefault) {
  EXPECT_FALSE(Line3(Point3(), Vector3(9e-11, 0, 0), -1).IsValid());
  EXPECT_TRUE(Line3(Point3(), Vector3(2e-10, 0, 0), -1).IsValid());
}

TEST(Line, HasTheFootOfAPoint) {
  Line3 line(Point3(1, 0, 0), Vector3(0, 2, 0), 0.001);
  const LineHit3 foot = line.Foot(Point3(7, 5, 3));
  EXPECT_TRUE(foot.found);
  EXPECT_THAT(foot.point, IsNear3(1, 5, 0));
}

TEST(Line, HasNoFootIfItIsDegenerate) {
  Line3 line(Point3(1, 0, 0), Vector3(), 0.001);
  const LineHit3 foot = line.Foot(Point3(7, 5, 3));
  EXPECT_FALSE(foot.found);
  EXPECT_THAT(foot.point, IsNear3(0, 0, 0));
}

TEST(Line, IsParallelToAPlaneAlongIt) {
  Plane3 floor(AxisZ, 0);
  EXPECT_TRUE(Line3(Point3(), AxisX, 0.001).IsParallel(floor, -1));
  EXPECT_FALSE(Line3(Point3(), AxisZ, 0.001).IsParallel(floor, -1));
  EXPECT_FALSE(Line3(Point3(), Vector3(1, 0, 0.1), 0.001).IsParallel(floor, -1));
  EXPECT_TRUE(Line3(Point3(), Vector3(1, 0, 0.1), 0.001).IsParallel(floor, 0.2));
}

TEST(Line, IsParallelToNothingIfItIsDegenerate) {
  Plane3 floor(AxisZ, 0);
  Plane3 none;
  EXPECT_FALSE(Line3(Point3(), Vector3(), 0.001).IsParallel(floor, -1));
  EXPECT_FALSE(Line3(Point3(), AxisX, 0.001).IsParallel(none, -1));
}

}  // namespace
}  // namespace KelIFC
