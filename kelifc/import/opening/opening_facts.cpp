#include "kelifc/import/opening/opening_facts.h"

#include "kelifc/geometry/polygon2.h"

namespace KelIFC {

namespace {

/// Returns the lower left and the upper right corner of the rectangle, converted to the plane of
/// the profile. After a rotation they need not be the minimum and the maximum any more.
Box2 RectangleBox(const ProfileFacts& rectangle) {
  const Point2 upper(rectangle.xDim * 0.5, rectangle.yDim * 0.5);
  Box2 box;
  box.min = ToPosition(rectangle, Point2(-upper.x, -upper.y));
  box.max = ToPosition(rectangle, upper);
  return box;
}

std::optional<Box2> CornersOf(const ProfileFacts& profile) {
  if (profile.kind == ProfileKind::kRectangle) return RectangleBox(profile);
  if (profile.kind == ProfileKind::kOutline && profile.isPolyLine) {
    return Polygon2(profile.corners, 0.0).BoundingBox();
  }
  return std::nullopt;
}

}  // namespace

Mvector<Point3> OpeningContour(const OpeningFacts& opening) {
  if (!opening.solid) return {};
  Mvector<Point3> contour = ContourOf(opening.solid->profile);
  if (contour.size() <= 2) return contour;
  const Vector3 half = ExtrusionOf(*opening.solid) * 0.5;
  for (Point3& point : contour) point = opening.solid->position.Apply(point + half);
  return contour;
}

void OpeningCorners(const OpeningFacts& opening, Point3& first, Point3& second) {
  if (!opening.solid) return;
  const std::optional<Box2> box = CornersOf(opening.solid->profile);
  if (!box) return;
  const Vector3 half = ExtrusionOf(*opening.solid) * 0.5;
  const auto toWorld = [&](const Point2& corner) {
    Point3 point = opening.solid->position.Apply(Point3(corner.x, corner.y, 0.0) + half);
    ApplyPlacementChain(opening.chain, point);
    return point;
  };
  first = toWorld(box->min);
  second = toWorld(box->max);
}

}  // namespace KelIFC
