#include "kelifc/building/read/offset.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace KelIFC::building {
namespace {

constexpr double kSamePoint = 1e-9;
constexpr double kLongestMitre = 4.0;

Vector2 LeftOf(const Point2& a, const Point2& b) {
  Vector2 along = b - a;
  Normalise(along);
  return {-along.y, along.x};
}

// The corner between two edges with the left normals `a` and `b`.
void AddCorner(std::vector<Point2>& line, const Point2& point, const Vector2& a, const Vector2& b,
               double distance) {
  const Vector2 sum(a.x + b.x, a.y + b.y);
  const double square = Dot(sum, sum);
  // The mitre is as long as 2 / |sum|.
  if (square * kLongestMitre * kLongestMitre > 4.0) {
    line.push_back(point + sum * (2.0 * distance / square));
    return;
  }
  line.push_back(point + a * distance);
  line.push_back(point + b * distance);
}

double AreaOf(const std::vector<Point2>& loop) {
  double area = 0.0;
  for (std::size_t i = 0; i < loop.size(); ++i) {
    area += 0.5 * Cross(loop[i] - loop[0], loop[(i + 1) % loop.size()] - loop[0]);
  }
  return area;
}

}  // namespace

std::vector<Point2> PlanePoints(const std::vector<Point3>& points) {
  std::vector<Point2> plane;
  for (const Point3& p : points) {
    const Point2 next(p.x, p.y);
    if (plane.empty() || Distance(plane.back(), next) > kSamePoint) plane.push_back(next);
  }
  return plane;
}

std::vector<Point2> OffsetLine(std::vector<Point2> points, double distance, bool isClosed) {
  if (isClosed && points.size() > 1) points.pop_back();
  std::vector<Point2> line;
  const std::size_t count = points.size();
  if (count < 2) return line;
  for (std::size_t i = 0; i < count; ++i) {
    const bool isFirst = !isClosed && i == 0;
    const bool isLast = !isClosed && i + 1 == count;
    const Point2& previous = points[(i + count - 1) % count];
    const Point2& next = points[(i + 1) % count];
    const Vector2 after = isLast ? LeftOf(previous, points[i]) : LeftOf(points[i], next);
    const Vector2 before = isFirst ? after : LeftOf(previous, points[i]);
    AddCorner(line, points[i], before, after, distance);
  }
  return line;
}

Region Thicken(const std::vector<Point2>& points, double thickness, bool isClosed) {
  Region region;
  if (points.size() < 2 || !(thickness > 0.0)) return region;
  std::vector<Point2> left = OffsetLine(points, 0.5 * thickness, isClosed);
  std::vector<Point2> right = OffsetLine(points, -0.5 * thickness, isClosed);
  if (isClosed) {
    if (std::abs(AreaOf(left)) > std::abs(AreaOf(right))) std::swap(left, right);
    region.outer.points = std::move(right);
    region.holes.push_back({std::move(left), {}});
    return region;
  }
  right.insert(right.end(), left.rbegin(), left.rend());
  region.outer.points = std::move(right);
  return region;
}

}  // namespace KelIFC::building
