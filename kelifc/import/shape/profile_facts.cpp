#include "kelifc/import/shape/profile_facts.h"

#include "kelifc/geometry/rotation2.h"

namespace KelIFC {

Point2 ToPosition(const ProfileFacts& rectangle, const Point2& point) {
  const Vector2& x = rectangle.refDirection;
  const Point2 turned = Rotate(point, Rotation2(DirectionAngle(x.x, x.y)));
  return turned + (rectangle.location - Point2());
}

Mvector<Point2> RectangleCorners(const ProfileFacts& rectangle) {
  const double x = rectangle.xDim / 2;
  const double y = rectangle.yDim / 2;
  Mvector<Point2> corners;
  corners.reserve(4);
  for (const Point2& corner : {Point2(-x, -y), Point2(x, -y), Point2(x, y), Point2(-x, y)}) {
    corners.push_back(ToPosition(rectangle, corner));
  }
  return corners;
}

Mvector<Point3> ContourOf(const ProfileFacts& profile) {
  if (profile.kind == ProfileKind::kOutline) return profile.outline;
  Mvector<Point3> contour;
  if (profile.kind != ProfileKind::kRectangle) return contour;
  for (const Point2& corner : RectangleCorners(profile)) {
    contour.push_back(Point3(corner.x, corner.y, 0.0));
  }
  return contour;
}

Mvector<Point2> ToPlane(const Mvector<Point3>& points) {
  Mvector<Point2> plane;
  plane.reserve(points.size());
  for (const Point3& point : points) plane.push_back(Point2(point.x, point.y));
  return plane;
}

}  // namespace KelIFC
