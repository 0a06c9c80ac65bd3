#include "kelifc/building/plane_cut.h"

#include <cmath>
#include <utility>

#include "kelifc/building/solid/slice.h"

namespace KelIFC {
namespace {

void Move(Outline& outline, const Vector2& by) {
  for (Point2& point : outline) point = point + by;
}

}  // namespace

std::vector<CutRegion> CutAtHeight(const Mesh& mesh, double z) {
  std::vector<CutRegion> cut;
  if (mesh.IsEmpty() || mesh.points.empty() || !std::isfinite(z)) return cut;
  // The origin is near the mesh, so that the plane's coordinates keep their digits far away from
  // the world's origin.
  building::PlaneFrame plane;
  plane.origin = {mesh.points.front().x, mesh.points.front().y, z};
  const Vector2 toWorld(plane.origin.x, plane.origin.y);
  for (building::FlatRegion& region : building::Slice(mesh, plane)) {
    Move(region.outer, toWorld);
    for (Outline& hole : region.holes) Move(hole, toWorld);
    cut.push_back({std::move(region.outer), std::move(region.holes)});
  }
  return cut;
}

}  // namespace KelIFC
