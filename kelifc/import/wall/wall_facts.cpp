#include "kelifc/import/wall/wall_facts.h"

#include <cmath>

#include "kelifc/geometry/polygon2.h"

namespace KelIFC {

std::optional<WallBox> ExtractWallBox(const ExtrusionFacts& solid) {
  const ProfileFacts& profile = solid.profile;
  const bool isRectangle = profile.kind == ProfileKind::kRectangle;
  if (!isRectangle && !(profile.kind == ProfileKind::kOutline && profile.isPolyLine)) {
    return std::nullopt;
  }
  const Mvector<Point2> outline =
      isRectangle ? RectangleCorners(profile) : ToPlane(profile.outline);
  const Box2 box = Polygon2(outline, 0.0).BoundingBox();
  WallBox wall;
  wall.thickness = std::abs(box.min.y - box.max.y);
  const double length = std::abs(box.min.x - box.max.x);
  const double height = solid.scale * solid.depth;
  const double y = box.min.y + wall.thickness * 0.5;
  wall.first = solid.position.Apply(Point3(box.min.x, y, 0.0));
  wall.second = solid.position.Apply(Point3(box.min.x + length, y, height));
  return wall;
}

}  // namespace KelIFC
