#include "kelifc/geometry/segment2.h"

#include "tests/geometry/points.h"

namespace KelIFC {
namespace {

constexpr double kTolerance = 0.001;

/// Classifies the segments from `a` to `b` and from `c` to `d`.
SegmentContact ClassifyEnds(Point2 a, Point2 b, Point2 c, Point2 d, std::int16_t mode = 0) {
  Segment2 first(a, b, kTolerance);
  first.mode = mode;
  return Classify(first, Segment2(c, d, 99.0));
}

TEST(Segment, HasALength) {
  const Point2 a(1, 1);
  const Point2 b(4, 5);
  EXPECT_EQ(Segment2(a, b, kTolerance).GetLength(), 5);
}

TEST(Segment, HasPointsNearerThanItsTolerance) {
  const Point2 a(0, 0);
  const Point2 b(10, 0);
  const Segment2 segment(a, b, 0.1);
  EXPECT_TRUE(segment.HasPoint(Point2(5, 0.09)));
  EXPECT_FALSE(segment.HasPoint(Point2(5, 0.1)));
  EXPECT_TRUE(segment.HasPoint(Point2(-0.05, 0)));
  EXPECT_FALSE(segment.HasPoint(Point2(-0.2, 0)));
  EXPECT_TRUE(segment.HasPoint(Point2(10, 0)));
}

TEST(Segment, HasNoPointIfItIsShorterThanItsTolerance) {
  const Point2 a(0, 0);
  const Point2 b(0.05, 0);
  EXPECT_FALSE(Segment2(a, b, 0.1).HasPoint(Point2(0, 0)));
}

TEST(Segment, HasNoPointWithoutATolerance) {
  const Point2 a(0, 0);
  const Point2 b(10, 0);
  EXPECT_FALSE(Segment2(a, b, 0.0).HasPoint(Point2(5, 0)));
}

TEST(Segment, HasABoxWithItsLimits) {
  const Point2 a(0, 2);
  const Point2 b(4, 0);
  const Segment2 segment(a, b, 0.5);
  EXPECT_TRUE(segment.HasInBox(Point2(4.5, 2.5)));
  EXPECT_TRUE(segment.HasInBox(Point2(-0.5, -0.5)));
  EXPECT_FALSE(segment.HasInBox(Point2(4.6, 1)));
  EXPECT_FALSE(segment.HasInBox(Point2(1, -0.6)));
}

TEST(Segment, CoincidesWithAPointInBothCoordinates) {
  EXPECT_TRUE(AreCoincident(Point2(1, 1), Point2(1.5, 0.5), 0.5));
  EXPECT_FALSE(AreCoincident(Point2(1, 1), Point2(1.6, 1), 0.5));
  EXPECT_FALSE(AreCoincident(Point2(1, 1), Point2(1, 0.4), 0.5));
}

TEST(SegmentContact, IsACrossingForAPoint) {
  EXPECT_EQ(ClassifyEnds({1, 1}, {1, 1}, {5, 5}, {6, 6}).code, 1);
  const auto second = ClassifyEnds({5, 5}, {6, 6}, {2, 1}, {2, 1});
  EXPECT_EQ(second.code, 1);
  EXPECT_THAT(second.point, IsNear2(2, 1));
}

TEST(SegmentContact, ReportsASharedEnd) {
  const auto first = ClassifyEnds({0, 0}, {1, 0}, {5, 5}, {0, 0});
  EXPECT_EQ(first.code, 2);
  EXPECT_THAT(first.point, IsNear2(0, 0));
  const auto last = ClassifyEnds({0, 0}, {1, 0}, {1, 0}, {1, 5});
  EXPECT_EQ(last.code, 2);
  EXPECT_THAT(last.point, IsNear2(1, 0));
}

TEST(SegmentContact, ReportsACrossing) {
  const auto contact = ClassifyEnds({0, 0}, {2, 2}, {0, 2}, {2, 0});
  EXPECT_EQ(contact.code, 1);
  EXPECT_THAT(contact.point, IsNear2(1, 1));
}

TEST(SegmentContact, ReportsATouch) {
  const auto contact = ClassifyEnds({0, 0}, {4, 0}, {2, 0}, {2, 3});
  EXPECT_EQ(contact.code, 3);
  EXPECT_THAT(contact.point, IsNear2(2, 0));
}

TEST(SegmentContact, IsNoneForSegmentsThatDoNotMeet) {
  EXPECT_EQ(ClassifyEnds({0, 0}, {4, 0}, {5, 1}, {5, 3}).code, 0);
  EXPECT_EQ(ClassifyEnds({0, 0}, {4, 0}, {0, 1}, {4, 1}).code, 0);
  EXPECT_EQ(ClassifyEnds({0, 0}, {4, 0}, {6, 0}, {9, 0}).code, 0);
}

TEST(SegmentContact, IsFoundOutsideTheSegmentsForWholeLines) {
  const auto contact = ClassifyEnds({0, 0}, {4, 0}, {5, 1}, {5, 3}, 1);
  EXPECT_EQ(contact.code, 1);
  EXPECT_THAT(contact.point, IsNear2(5, 0));
}

TEST(SegmentContact, IsTheLastEndInsideForAnOverlap) {
  const auto contact = ClassifyEnds({0, 0}, {4, 0}, {2, 0}, {9, 0});
  EXPECT_EQ(contact.code, 3);
  EXPECT_THAT(contact.point, IsNear2(4, 0));
  const auto inner = ClassifyEnds({0, 0}, {4, 0}, {1, 0}, {3, 0});
  EXPECT_EQ(inner.code, 3);
  EXPECT_THAT(inner.point, IsNear2(3, 0));
}

}  // namespace
}  // namespace KelIFC
