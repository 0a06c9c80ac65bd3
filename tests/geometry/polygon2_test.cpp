#include "kelifc/geometry/polygon2.h"

#include "tests/geometry/points.h"

namespace KelIFC {
namespace {

constexpr double kTolerance = 0.001;

const Mvector<Point2> kSquare = Points2({{0, 0}, {4, 0}, {4, 4}, {0, 4}});
const Mvector<Point2> kClockwise = Points2({{0, 4}, {4, 4}, {4, 0}, {0, 0}});
/// A square without its upper right quarter.
const Mvector<Point2> kCorner = Points2({{0, 0}, {4, 0}, {4, 2}, {2, 2}, {2, 4}, {0, 4}});

bool HasPoint(const Mvector<Point2>& polygon, Point2 point, bool strict = false) {
  return Polygon2(polygon, kTolerance).IsInside(point, strict);
}

bool HasSegment(const Mvector<Point2>& polygon, Point2 from, Point2 to, bool strict = false) {
  return Polygon2(polygon, kTolerance).IsInside(Segment2(from, to, kTolerance), strict);
}

bool HasPolygon(const Mvector<Point2>& outer, const Mvector<Point2>& inner, bool strict = false) {
  return Polygon2(outer, kTolerance).IsInside(Polygon2(inner, kTolerance), strict);
}

TEST(Polygon, HasABox) {
  const Box2 box = Polygon2(kCorner, kTolerance).BoundingBox();
  EXPECT_THAT(box.min, IsNear2(0, 0));
  EXPECT_THAT(box.max, IsNear2(4, 4));
}

TEST(Polygon, HasABoxAtTheOriginWithoutPoints) {
  const Mvector<Point2> none;
  const Box2 box = Polygon2(none, kTolerance).BoundingBox();
  EXPECT_THAT(box.min, IsNear2(0, 0));
  EXPECT_THAT(box.max, IsNear2(0, 0));
}

TEST(Polygon, HasAnAreaWithASign) {
  EXPECT_EQ(Polygon2(kSquare, kTolerance).SignedArea(), 16);
  EXPECT_EQ(Polygon2(kClockwise, kTolerance).SignedArea(), -16);
  EXPECT_EQ(Polygon2(kCorner, kTolerance).SignedArea(), 12);
}

TEST(Polygon, TurnsCounterClockwiseForMinusOne) {
  EXPECT_EQ(Polygon2(kSquare, kTolerance).Orientation(), -1);
  EXPECT_EQ(Polygon2(kClockwise, kTolerance).Orientation(), 1);
}

TEST(Polygon, HasNoAreaAndNoOrientationForTwoPoints) {
  const auto two = Points2({{0, 0}, {4, 4}});
  EXPECT_EQ(Polygon2(two, kTolerance).SignedArea(), 0);
  EXPECT_EQ(Polygon2(two, kTolerance).Orientation(), 0);
}

TEST(Polygon, HasNoOrientationIfItIsFlatterThanItsTolerance) {
  const auto flat = Points2({{0, 0}, {4, 0}, {4, 0.0005}, {0, 0.0005}});
  EXPECT_EQ(Polygon2(flat, kTolerance).Orientation(), 0);
  const auto point = Points2({{3, 3}, {3, 3}, {3, 3}});
  EXPECT_EQ(Polygon2(point, kTolerance).Orientation(), 0);
}

TEST(Polygon, HasItsSidesAndVerticesOnItsBoundary) {
  const Polygon2 square(kSquare, kTolerance);
  EXPECT_TRUE(square.IsOnBoundary(Point2(2, 0)));
  EXPECT_TRUE(square.IsOnBoundary(Point2(0, 2)));
  EXPECT_TRUE(square.IsOnBoundary(Point2(4, 4)));
  EXPECT_TRUE(square.IsOnBoundary(Point2(4.0009, 4.0009)));
  EXPECT_FALSE(square.IsOnBoundary(Point2(2, 2)));
  EXPECT_FALSE(square.IsOnBoundary(Point2(2, 0.0011)));
}

TEST(Polygon, HasPointsInsideAndOutside) {
  EXPECT_TRUE(HasPoint(kCorner, {1, 1}));
  EXPECT_TRUE(HasPoint(kCorner, {1, 3.5}));
  EXPECT_FALSE(HasPoint(kCorner, {3, 3.5}));
  EXPECT_FALSE(HasPoint(kCorner, {5, 1}));
  EXPECT_FALSE(HasPoint(kCorner, {1, -0.1}));
}

TEST(Polygon, HasItsBoundaryInsideUnlessTheTestIsStrict) {
  for (const Point2 point : {Point2(2, 0), Point2(4, 1), Point2(0, 0), Point2(2, 2)}) {
    EXPECT_TRUE(HasPoint(kCorner, point, false));
    EXPECT_FALSE(HasPoint(kCorner, point, true));
  }
  EXPECT_TRUE(HasPoint(kCorner, {1, 1}, true));
}

TEST(Polygon, HasNothingInsideWithoutPoints) {
  EXPECT_FALSE(HasPoint({}, {0, 0}));
  EXPECT_FALSE(HasSegment({}, {0, 0}, {0, 0}));
  EXPECT_TRUE(HasPolygon({}, {}));
  EXPECT_FALSE(HasPolygon({}, kSquare));
}

TEST(Polygon, HasASegmentInside) {
  EXPECT_TRUE(HasSegment(kCorner, {0.5, 0.5}, {3.5, 1}));
  EXPECT_TRUE(HasSegment(kCorner, {0.5, 0.5}, {3.5, 1}, true));
  EXPECT_FALSE(HasSegment(kCorner, {1, 3}, {3, 1.5}));
  EXPECT_FALSE(HasSegment(kCorner, {1, 3.5}, {3, 3.5}));
  EXPECT_FALSE(HasSegment(kCorner, {3, 3.5}, {1, 3.5}));
}

TEST(Polygon, HasItsOwnSidesInside) {
  EXPECT_TRUE(HasSegment(kCorner, {0, 0}, {4, 0}));
  EXPECT_TRUE(HasSegment(kCorner, {2, 2}, {2, 4}));
  EXPECT_FALSE(HasSegment(kCorner, {0, 0}, {4, 0}, true));
}

TEST(Polygon, HasNoSegmentInsideThatLeavesItBetweenTwoVertices) {
  EXPECT_FALSE(HasSegment(kCorner, {4, 2}, {2, 4}));
  EXPECT_TRUE(HasSegment(kCorner, {0, 4}, {4, 0}));
}

TEST(Polygon, HasASegmentThatIsAPointInsideUnlessStrict) {
  EXPECT_TRUE(HasSegment(kCorner, {1, 1}, {1, 1}));
  EXPECT_FALSE(HasSegment(kCorner, {1, 1}, {1, 1}, true));
}

TEST(Polygon, HasAPolygonInside) {
  const auto small = Points2({{0.5, 0.5}, {1.5, 0.5}, {1.5, 1.5}});
  EXPECT_TRUE(HasPolygon(kCorner, small));
  EXPECT_TRUE(HasPolygon(kCorner, small, true));
  EXPECT_FALSE(HasPolygon(small, kCorner));
  EXPECT_TRUE(HasPolygon(kSquare, kCorner));
  EXPECT_FALSE(HasPolygon(kCorner, kSquare));
  EXPECT_TRUE(HasPolygon(kSquare, kClockwise));
  EXPECT_FALSE(HasPolygon(kSquare, kClockwise, true));
}

TEST(Polygon, SurvivesUndefinedCoordinates) {
  for (const double bad : {kNoNumber, kInfinity, -kInfinity}) {
    const auto polygon = Points2({{0, 0}, {bad, 0}, {4, bad}, {0, 4}});
    const Polygon2 view(polygon, kTolerance);
    view.SignedArea();
    view.Orientation();
    view.IsInside(Point2(1, 1), false);
    view.IsInside(Point2(bad, bad), false);
    view.IsInside(view, false);
    EXPECT_FALSE(Polygon2(kSquare, kTolerance).IsInside(Point2(bad, bad), true));
  }
}

}  // namespace
}  // namespace KelIFC
