#include "kelifc/geometry/polygon_normal.h"

#include <cstddef>

#include "kelifc/geometry/isometry3.h"
#include "kelifc/geometry/polygon2.h"
#include "kelifc/geometry/triangle.h"

namespace KelIFC {

Vector3 PolygonNormal(const Mvector<Point3>& points, double tolerance) {
  Mvector<Point2> plane;
  return PolygonNormal(points, tolerance, plane);
}

Vector3 PolygonNormal(const Mvector<Point3>& points, double tolerance, Mvector<Point2>& plane) {
  std::size_t third = 2;
  while (third < points.size() &&
         IsDegenerateTriangle(points[0], points[1], points[third], tolerance)) {
    ++third;
  }
  if (third >= points.size()) return {};
  const Isometry3 frame(points[0], points[1], points[third]);
  plane.clear();
  plane.reserve(points.size());
  for (const Point3& point : points) {
    const Point3 local = frame.InverseApply(point);
    plane.push_back({local.x, local.y});
  }
  return Polygon2(plane, tolerance).Orientation() < 0 ? frame.zAxis : -frame.zAxis;
}

}  // namespace KelIFC
