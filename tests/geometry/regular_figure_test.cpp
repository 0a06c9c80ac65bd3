#include "kelifc/geometry/regular_figure.h"

#include <algorithm>
#include <cmath>

#include "tests/geometry/points.h"

namespace KelIFC {
namespace {

/// The result of Poly2RegularFigure for an outline. The outputs start at -1.
struct Figure {
  explicit Figure(const Mvector<Point2>& outline)
      : kind(Poly2RegularFigure(outline, 0.001, a, b, c, d)) {}

  double a = -1;
  double b = -1;
  double c = -1;
  double d = -1;
  EGEO_P2RF_PROFILES kind;
};

/// Returns the same outline, starting at another point.
Mvector<Point2> Rotated(Mvector<Point2> outline, std::size_t by) {
  std::rotate(outline.begin(), outline.begin() + by, outline.end());
  return outline;
}

Mvector<Point2> Reversed(Mvector<Point2> outline) {
  std::reverse(outline.begin(), outline.end());
  return outline;
}

Mvector<Point2> Moved(Mvector<Point2> outline, double x, double y) {
  for (Point2& point : outline) point = {point.x + x, point.y + y};
  return outline;
}

Mvector<Point2> Round(int count, double radius) {
  Mvector<Point2> points;
  for (int i = 0; i < count; ++i) {
    const double angle = 2 * std::acos(-1.0) * i / count;
    points.push_back({radius * std::cos(angle), radius * std::sin(angle)});
  }
  return points;
}

const Mvector<Point2> kTee = Points2({{-0.3, 0.5},
                                      {-0.3, 0.4},
                                      {-0.1, 0.4},
                                      {-0.1, 0},
                                      {0.1, 0},
                                      {0.1, 0.4},
                                      {0.3, 0.4},
                                      {0.3, 0.5}});

TEST(RegularFigure, IsARectangleAnywhereInThePlane) {
  const auto outline = Points2({{7, 3}, {7.3, 3}, {7.3, 3.5}, {7, 3.5}});
  for (std::size_t first = 0; first < 4; ++first) {
    for (const auto& turned : {Rotated(outline, first), Reversed(Rotated(outline, first))}) {
      const Figure figure(turned);
      EXPECT_EQ(figure.kind, EGEO_P2RF_RECTANGLE);
      EXPECT_NEAR(figure.a, 0.3, 1e-12);
      EXPECT_NEAR(figure.b, 0.5, 1e-12);
      EXPECT_EQ(figure.c, -1);
      EXPECT_EQ(figure.d, -1);
    }
  }
}

TEST(RegularFigure, IsARectangleWithinTheTolerance) {
  EXPECT_EQ(Figure(Points2({{0, 0}, {2, 0.0005}, {2, 1}, {0.0005, 1}})).kind, EGEO_P2RF_RECTANGLE);
  EXPECT_EQ(Figure(Points2({{0, 0}, {2, 0.002}, {2, 1}, {0, 1}})).kind, EGEO_P2RF_NONE);
}

TEST(RegularFigure, IsNoRectangleForCornersInAnotherOrder) {
  EXPECT_EQ(Figure(Points2({{0, 0}, {2, 1}, {2, 0}, {0, 1}})).kind, EGEO_P2RF_NONE);
  EXPECT_EQ(Figure(Points2({{0, 0}, {2, 0}, {2, 1}, {2, 0}})).kind, EGEO_P2RF_NONE);
  EXPECT_EQ(Figure(Points2({{0, 0}, {2, 0}, {0, 0}, {0, 1}})).kind, EGEO_P2RF_NONE);
}

TEST(RegularFigure, IsNoRectangleForARhombus) {
  EXPECT_EQ(Figure(Points2({{0, -1}, {1, 0}, {0, 1}, {-1, 0}})).kind, EGEO_P2RF_NONE);
  EXPECT_EQ(Figure(Points2({{0, 0}, {2, 0}, {2, 1}, {0.5, 1}})).kind, EGEO_P2RF_NONE);
}

TEST(RegularFigure, IsATeeFromAnyPointInEitherDirection) {
  for (std::size_t first = 0; first < 8; ++first) {
    for (const auto& turned : {Rotated(kTee, first), Reversed(Rotated(kTee, first))}) {
      const Figure figure(turned);
      EXPECT_EQ(figure.kind, EGEO_P2RF_T);
      EXPECT_NEAR(figure.a, 0.2, 1e-12);
      EXPECT_NEAR(figure.b, 0.5, 1e-12);
      EXPECT_NEAR(figure.c, 0.6, 1e-12);
      EXPECT_NEAR(figure.d, 0.1, 1e-12);
    }
  }
}

TEST(RegularFigure, IsATeeAtAnyHeight) {
  EXPECT_EQ(Figure(Moved(kTee, 0, -0.25)).kind, EGEO_P2RF_T);
}

TEST(RegularFigure, IsNoTeeIfItIsOffTheAxisOrUpsideDown) {
  const Figure beside(Moved(kTee, 0.2, 0));
  EXPECT_EQ(beside.kind, EGEO_P2RF_NONE);
  EXPECT_NEAR(beside.b, 0.5, 1e-12);
  EXPECT_NEAR(beside.c, 0.6, 1e-12);
  auto turned = kTee;
  for (Point2& point : turned) point.y = -point.y;
  EXPECT_EQ(Figure(turned).kind, EGEO_P2RF_NONE);
}

TEST(RegularFigure, WritesTheExtentsOfAnyEightPoints) {
  const Figure figure(Round(8, 1));
  EXPECT_EQ(figure.kind, EGEO_P2RF_NONE);
  EXPECT_NEAR(figure.b, 2, 1e-12);
  EXPECT_NEAR(figure.c, 2, 1e-12);
}

TEST(RegularFigure, IsACircleOfTenPointsOrMore) {
  const Figure figure(Round(16, 0.2));
  EXPECT_EQ(figure.kind, EGEO_P2RF_CIRCLE);
  EXPECT_NEAR(figure.a, 0.4, 1e-12);
  EXPECT_EQ(Figure(Round(10, 0.2)).kind, EGEO_P2RF_CIRCLE);
  EXPECT_EQ(Figure(Round(9, 0.2)).kind, EGEO_P2RF_NONE);
}

TEST(RegularFigure, IsNoCircleAroundAnotherCentre) {
  EXPECT_EQ(Figure(Moved(Round(16, 0.2), 0.1, 0)).kind, EGEO_P2RF_NONE);
}

TEST(RegularFigure, IsNothingForOtherOutlines) {
  EXPECT_EQ(Figure({}).kind, EGEO_P2RF_NONE);
  EXPECT_EQ(Figure(Points2({{0, 0}, {1, 0}, {0, 1}})).kind, EGEO_P2RF_NONE);
  EXPECT_EQ(Figure(Points2({{0, 0}, {1, 0}, {1, 1}, {0.5, 2}, {0, 1}})).kind, EGEO_P2RF_NONE);
}

TEST(RegularFigure, SurvivesUndefinedCoordinates) {
  for (const double bad : {kNoNumber, kInfinity}) {
    EXPECT_EQ(Figure(Points2({{0, 0}, {bad, 0}, {1, 1}, {0, 1}})).kind, EGEO_P2RF_NONE);
    auto tee = kTee;
    tee[3].x = bad;
    EXPECT_EQ(Figure(tee).kind, EGEO_P2RF_NONE);
  }
}

}  // namespace
}  // namespace KelIFC
