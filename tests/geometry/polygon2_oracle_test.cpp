#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

#include "kelifc/geometry/polygon2.h"

#include "tests/geometry/points.h"

// Compares the tests of polygons with a second implementation, which is slow and simple and uses
// other methods.

namespace KelIFC {
namespace {

constexpr double kTolerance = 0.001;
constexpr double kPi = std::numbers::pi;

/// Returns the distance of a point from a segment.
double DistanceTo(const Point2& point, const Point2& a, const Point2& b) {
  const Vector2 side = b - a;
  const double square = Dot(side, side);
  const double along = square == 0 ? 0 : std::clamp(Dot(point - a, side) / square, 0.0, 1.0);
  return Distance(point, a + side * along);
}

double DistanceToBoundary(const Mvector<Point2>& polygon, const Point2& point) {
  double least = kInfinity;
  for (std::size_t i = 0; i < polygon.size(); ++i) {
    least = std::min(least, DistanceTo(point, polygon[i], polygon[(i + 1) % polygon.size()]));
  }
  return least;
}

/// Returns how many times the polygon winds around the point, computed from the sum of the angles.
int WindingNumber(const Mvector<Point2>& polygon, const Point2& point) {
  double sum = 0;
  for (std::size_t i = 0; i < polygon.size(); ++i) {
    const Vector2 a = polygon[i] - point;
    const Vector2 b = polygon[(i + 1) % polygon.size()] - point;
    sum += std::atan2(Cross(a, b), Dot(a, b));
  }
  return static_cast<int>(std::lround(sum / (2 * kPi)));
}

enum class Side { kOutside, kBoundary, kInside, kUnclear };

/// A point is unclear if its distance from the boundary is about the tolerance.
Side SideOf(const Mvector<Point2>& polygon, const Point2& point) {
  const double distance = DistanceToBoundary(polygon, point);
  if (distance < 0.5 * kTolerance) return Side::kBoundary;
  if (distance < 3 * kTolerance) return Side::kUnclear;
  return WindingNumber(polygon, point) != 0 ? Side::kInside : Side::kOutside;
}

/// Returns true if the ray of the crossing test passes exactly through a vertex. The crossing test
/// then counts both sides that meet there, and its result need not be the true one.
bool IsRayThroughVertex(const Mvector<Point2>& polygon, const Point2& point) {
  const Box2 box = Polygon2(polygon, kTolerance).BoundingBox();
  const Point2 far(box.max.x + kTolerance + 1.0, box.max.y);
  return std::any_of(polygon.begin(), polygon.end(), [&](const Point2& vertex) {
    return std::abs(Cross(far - point, vertex - point)) < 1e-12;
  });
}

using Random = std::mt19937;

double Uniform(Random& random, double from, double to) {
  return std::uniform_real_distribution<double>(from, to)(random);
}

/// Returns a polygon around the origin with random radii, in either direction.
Mvector<Point2> Star(Random& random) {
  const int count = std::uniform_int_distribution<int>(3, 20)(random);
  Mvector<Point2> polygon;
  for (int i = 0; i < count; ++i) {
    const double angle = 2 * kPi * (i + Uniform(random, 0, 0.9)) / count;
    const double radius = Uniform(random, 0.5, 5);
    polygon.push_back({radius * std::cos(angle), radius * std::sin(angle)});
  }
  if (random() % 2 == 0) std::reverse(polygon.begin(), polygon.end());
  return polygon;
}

/// Returns a polygon of columns with the width 1 and integer heights. Its sides have points in
/// their middle.
Mvector<Point2> Skyline(Random& random) {
  const int columns = std::uniform_int_distribution<int>(1, 6)(random);
  Mvector<Point2> polygon;
  polygon.push_back({0, 0});
  for (int i = 1; i <= columns; ++i) polygon.push_back({double(i), 0});
  for (int i = columns; i > 0; --i) {
    const double height = std::uniform_int_distribution<int>(1, 5)(random);
    polygon.push_back({double(i), height});
    polygon.push_back({i - 0.5, height});
    polygon.push_back({i - 1.0, height});
  }
  return polygon;
}

/// Compares the tests of a point. Returns false if the point is unclear.
bool Compare(const Mvector<Point2>& polygon, const Point2& point) {
  const Side side = SideOf(polygon, point);
  if (side == Side::kUnclear) return false;
  const Polygon2 view(polygon, kTolerance);
  EXPECT_EQ(view.IsOnBoundary(point), side == Side::kBoundary);
  if (side != Side::kBoundary && IsRayThroughVertex(polygon, point)) return false;
  EXPECT_EQ(view.IsInside(point, false), side != Side::kOutside);
  EXPECT_EQ(view.IsInside(point, true), side == Side::kInside);
  return true;
}

TEST(PolygonOracle, AgreesOnPointsOfRandomPolygons) {
  Random random(1);
  int compared = 0;
  for (int i = 0; i < 2000; ++i) {
    const auto polygon = Star(random);
    for (int k = 0; k < 20; ++k) {
      compared += Compare(polygon, {Uniform(random, -6, 6), Uniform(random, -6, 6)});
    }
    for (std::size_t v = 0; v < polygon.size(); ++v) {
      const Point2& next = polygon[(v + 1) % polygon.size()];
      compared += Compare(polygon, polygon[v]);
      compared += Compare(polygon, polygon[v] + (next - polygon[v]) * Uniform(random, 0, 1));
    }
    if (HasFailure()) break;
  }
  EXPECT_GT(compared, 50000);
}

TEST(PolygonOracle, AgreesOnPointsOfLatticePolygons) {
  Random random(2);
  int compared = 0;
  for (int i = 0; i < 500; ++i) {
    const auto polygon = Skyline(random);
    for (double x = -0.5; x <= 6.5; x += 0.5) {
      for (double y = -0.5; y <= 5.5; y += 0.5) compared += Compare(polygon, {x, y});
    }
    if (HasFailure()) break;
  }
  EXPECT_GT(compared, 20000);
}

/// Classifies samples of a segment. A segment that passes near a vertex without touching it is
/// unclear.
Side SideOfSegment(const Mvector<Point2>& polygon, const Point2& from, const Point2& to) {
  constexpr int kSamples = 400;
  bool isUnclear = false;
  for (int i = 0; i <= kSamples; ++i) {
    const Point2 point = from + (to - from) * (double(i) / kSamples);
    const Side side = SideOf(polygon, point);
    if (side == Side::kOutside) return Side::kOutside;
    isUnclear = isUnclear || side != Side::kInside;
  }
  return isUnclear ? Side::kUnclear : Side::kInside;
}

TEST(PolygonOracle, AgreesOnSegmentsOfRandomPolygons) {
  Random random(3);
  int inside = 0;
  int outside = 0;
  for (int i = 0; i < 400; ++i) {
    const auto polygon = Star(random);
    const Polygon2 view(polygon, kTolerance);
    for (int k = 0; k < 10; ++k) {
      const Point2 from(Uniform(random, -3, 3), Uniform(random, -3, 3));
      const Point2 to(Uniform(random, -3, 3), Uniform(random, -3, 3));
      const Side side = SideOfSegment(polygon, from, to);
      if (side == Side::kUnclear) continue;
      (side == Side::kInside ? inside : outside)++;
      for (const bool strict : {false, true}) {
        EXPECT_EQ(view.IsInside(Segment2(from, to, kTolerance), strict), side == Side::kInside);
      }
    }
    if (HasFailure()) break;
  }
  EXPECT_GT(inside, 100);
  EXPECT_GT(outside, 1000);
}

TEST(PolygonOracle, FindsAPolygonInsideItselfAndAShrunkOneToo) {
  Random random(4);
  for (int i = 0; i < 300; ++i) {
    const auto polygon = Star(random);
    const Polygon2 view(polygon, kTolerance);
    EXPECT_TRUE(view.IsInside(view, false));
    EXPECT_FALSE(view.IsInside(view, true));
    // Each ray from the origin meets the polygon once, so a smaller copy is inside.
    Mvector<Point2> small;
    for (const Point2& point : polygon) small.push_back({point.x / 2, point.y / 2});
    EXPECT_FALSE(Polygon2(small, kTolerance).IsInside(view, false));
  }
}

TEST(PolygonOracle, AgreesOnTheArea) {
  Random random(5);
  for (int i = 0; i < 300; ++i) {
    const auto polygon = Star(random);
    double area = 0;
    for (std::size_t v = 1; v + 1 < polygon.size(); ++v) {
      area += Cross(polygon[v] - polygon[0], polygon[v + 1] - polygon[0]) / 2;
    }
    EXPECT_NEAR(Polygon2(polygon, kTolerance).SignedArea(), area, 1e-9);
  }
}

}  // namespace
}  // namespace KelIFC
