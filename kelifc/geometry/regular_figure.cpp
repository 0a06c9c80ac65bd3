#include "kelifc/geometry/regular_figure.h"

#include <cmath>
#include <cstddef>
#include <initializer_list>

#include "kelifc/geometry/constants.h"
#include "kelifc/geometry/polygon2.h"

namespace KelIFC {

namespace {

constexpr std::size_t kLeastCirclePoints = 10;

Mvector<Point2> Points(std::initializer_list<Point2> list) {
  Mvector<Point2> points;
  points.reserve(list.size());
  for (const Point2& point : list) points.push_back(point);
  return points;
}

/// Each polygon is inside the other. The result depends neither on the first point nor on the
/// direction.
bool AreEqual(const Polygon2& polygon, const Mvector<Point2>& figure) {
  const Polygon2 other(figure, polygon.tolerance);
  return other.IsInside(polygon, false) && polygon.IsInside(other, false);
}

/// A shortcut for the usual rectangle. Returns true if the four points are exactly the corners of
/// their box, in order, and the box is much larger than the tolerance. The general test would then
/// succeed as well.
bool IsBox(const Polygon2& polygon, const Box2& box) {
  const double least = 10 * polygon.tolerance;
  if (!(box.max.x - box.min.x > least && box.max.y - box.min.y > least)) return false;
  const auto& points = polygon.points;
  for (std::size_t i = 0; i < points.size(); ++i) {
    const Point2& point = points[i];
    const Point2& next = points[(i + 1) % points.size()];
    if (point.x != box.min.x && point.x != box.max.x) return false;
    if (point.y != box.min.y && point.y != box.max.y) return false;
    if ((point.x == next.x) == (point.y == next.y)) return false;
  }
  // No corner may occur twice.
  return points[0].x != points[2].x && points[0].y != points[2].y && points[1].x != points[3].x &&
         points[1].y != points[3].y;
}

bool IsRectangle(const Polygon2& polygon, const Box2& box) {
  return IsBox(polygon, box) ||
         AreEqual(polygon,
                  Points({box.min, {box.min.x, box.max.y}, box.max, {box.max.x, box.min.y}}));
}

/// Reads the width of the web and the thickness of the flange from the points that are not on the
/// box. If they differ, the last point decides.
void ReadT(const Polygon2& polygon, const Box2& box, double& a, double& d) {
  const double tolerance = polygon.tolerance;
  for (const Point2& point : polygon.points) {
    const double x = std::abs(point.x);
    if (std::abs(x - box.min.x) > tolerance && std::abs(x - box.max.x) > tolerance) a = 2 * x;
    if (std::abs(point.y - box.min.y) > tolerance && std::abs(point.y - box.max.y) > tolerance) {
      d = box.max.y - point.y;
    }
  }
}

bool IsT(const Polygon2& polygon, const Box2& box, double a, double d) {
  const double web = a / 2;
  const double flange = box.max.y - d;
  return AreEqual(polygon, Points({{box.min.x, box.max.y},
                                   box.max,
                                   {box.max.x, flange},
                                   {web, flange},
                                   {web, box.min.y},
                                   {-web, box.min.y},
                                   {-web, flange},
                                   {box.min.x, flange}}));
}

bool IsCircle(const Mvector<Point2>& polygon, double tolerance, double& a) {
  if (polygon.size() < kLeastCirclePoints) return false;
  const double radius = Distance(polygon[0], Origin2);
  for (const Point2& point : polygon) {
    if (std::abs(Distance(point, Origin2) - radius) > tolerance) return false;
  }
  a = 2 * radius;
  return true;
}

}  // namespace

EGEO_P2RF_PROFILES Poly2RegularFigure(const Mvector<Point2>& polygon, double tolerance, double& a,
                                      double& b, double& c, double& d) {
  const Polygon2 outline(polygon, tolerance);
  const Box2 box = outline.BoundingBox();
  if (polygon.size() == 4 && IsRectangle(outline, box)) {
    a = box.max.x - box.min.x;
    b = box.max.y - box.min.y;
    return EGEO_P2RF_RECTANGLE;
  }
  if (polygon.size() == 8) {
    c = box.max.x - box.min.x;
    b = box.max.y - box.min.y;
    ReadT(outline, box, a, d);
    if (IsT(outline, box, a, d)) return EGEO_P2RF_T;
  }
  return IsCircle(polygon, tolerance, a) ? EGEO_P2RF_CIRCLE : EGEO_P2RF_NONE;
}

}  // namespace KelIFC
