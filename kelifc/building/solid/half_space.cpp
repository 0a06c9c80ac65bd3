#include "kelifc/building/solid/half_space.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "kelifc/building/profile/make_profile.h"
#include "kelifc/building/solid/boolean.h"
#include "kelifc/building/solid/made_mesh.h"
#include "kelifc/building/solid/mesh_tools.h"
#include "kelifc/building/solid/rings.h"
#include "kelifc/building/solid/vector_math.h"

namespace KelIFC::building {

namespace {

/// The points of a mesh in the coordinates of a placement; none if the placement flattens space.
std::optional<std::vector<Point3>> InCoordinatesOf(const Transform3& position, const Mesh& mesh) {
  const double determinant = position.Determinant();
  if (!(std::abs(determinant) > 1e-18)) return std::nullopt;
  std::vector<Point3> result;
  for (const Point3& p : mesh.points) {
    const Vector3 v = p - position.origin;
    result.emplace_back(Dot(v, Cross(position.y, position.z)) / determinant,
                        Dot(v, Cross(position.z, position.x)) / determinant,
                        Dot(v, Cross(position.x, position.y)) / determinant);
  }
  return result;
}

/// True if a convex outline has all points inside, none of them on it.
bool IsAround(const FlatRegion& region, const std::vector<Point3>& points) {
  if (!region.holes.empty()) return false;
  const Outline& outline = region.outer;
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const Point2& a = outline[i];
    const Point2& b = outline[(i + 1) % outline.size()];
    if (Turn(a, b, outline[(i + 2) % outline.size()]) < 0.0) return false;
    const double margin = kWeldDistance * Distance(a, b);
    for (const Point3& p : points) {
      if (Turn(a, b, {p.x, p.y}) < -margin) return false;
    }
  }
  return true;
}

/// The part of the prism above and below a region that may meet a mesh.
Mesh PrismOf(const FlatRegion& region, const Transform3& position,
             const std::vector<Point3>& points) {
  BuildingBox box;
  for (const Point3& p : points) Extend(box, p);
  // No end of the prism may lie in a face of the mesh.
  const double margin = 1.0 + SizeOf(box);
  Mesh mesh;
  RingSweep sweep;
  sweep.loopSizes = LoopSizesOf(region);
  for (const double z : {box.min.z - margin, box.max.z + margin}) {
    std::vector<Mesh::Index> ring;
    for (const Point2& p : PointsOf(region)) {
      ring.push_back(AddPoint(mesh, position(Point3(p.x, p.y, z))));
    }
    sweep.rings.push_back(std::move(ring));
  }
  AddSweep(mesh, sweep);
  return position.Determinant() < 0.0 ? Flip(mesh) : mesh;
}

/// True if no point of the mesh is in the half-space, deeper than the weld distance.
bool IsOutside(const Mesh& mesh, const HalfSpace& cutter) {
  return std::all_of(mesh.points.begin(), mesh.points.end(), [&](const Point3& p) {
    return Dot(p - cutter.point, cutter.normal) >= -kWeldDistance;
  });
}

}  // namespace

bool CutByHalfSpace(const Mesh& mesh, const HalfSpace& cutter, bool keepsInside, Mesh& result) {
  const Vector3 normal = Unit(cutter.normal);
  if (Length(normal) == 0.0 || !IsUsable(cutter.point)) return false;
  const Mesh cut = CutByPlane(mesh, cutter.point, keepsInside ? normal : -normal);
  if (!cutter.boundary) {
    result = cut;
    return true;
  }
  if (IsOutside(mesh, cutter)) {
    result = keepsInside ? Mesh() : mesh;
    return true;
  }
  const std::optional<FlatRegion> region = Flatten(*cutter.boundary);
  const auto points = InCoordinatesOf(cutter.position, mesh);
  if (!region || !points) return false;
  if (IsAround(*region, *points)) {
    result = cut;
    return true;
  }
  const Mesh prism = PrismOf(*region, cutter.position, *points);
  const Mesh inside = CutByPlane(prism, cutter.point, normal);
  const BooleanOperation operation =
      keepsInside ? BooleanOperation::kIntersection : BooleanOperation::kDifference;
  return Combine(mesh, inside, operation, result);
}

}  // namespace KelIFC::building
