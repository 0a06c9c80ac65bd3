#include "kelifc/building/build/openings.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "kelifc/building/build/finite.h"
#include "kelifc/building/solid/slice.h"

namespace KelIFC::building {
namespace {

/// A plane by a point and its unit normal.
struct Plane {
  Point3 point;
  Vector3 normal;
};

/// The extent of points along a direction, from an origin.
struct Extent {
  double low = std::numeric_limits<double>::infinity();
  double high = -std::numeric_limits<double>::infinity();
};

Extent ExtentAlong(const Mesh& mesh, const Plane& plane) {
  Extent extent;
  for (const Point3& point : mesh.points) {
    const double height = Dot(point - plane.point, plane.normal);
    extent.low = std::min(extent.low, height);
    extent.high = std::max(extent.high, height);
  }
  return extent;
}

/// Twice the area of the outer loop of a face, as a vector along its normal.
Vector3 AreaOf(const Mesh& mesh, std::size_t face) {
  const Mesh::Loop loop = mesh.LoopOf(face, 0);
  Vector3 area;
  for (std::size_t i = 2; i < loop.size(); ++i) {
    const Point3& origin = mesh.points[loop[0]];
    area = area + Cross(mesh.points[loop[i - 1]] - origin, mesh.points[loop[i]] - origin);
  }
  return area;
}

Vector3 NormalOfLargestFace(const Mesh& mesh) {
  Vector3 largest;
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    const Vector3 area = AreaOf(mesh, face);
    if (Dot(area, area) > Dot(largest, largest)) largest = area;
  }
  Normalise(largest);
  return largest;
}

/// The direction of the only extrusion of an opening, in the world; zero if its shape is another.
Vector3 DirectionOfExtrusion(const OpeningFacts& facts) {
  constexpr int kDeepestMap = 8;  // of a deeper opening the largest face counts
  Transform3 toWorld = facts.placement;
  const std::vector<SolidPointer>* items = &facts.items;
  for (int depth = 0; depth < kDeepestMap; ++depth) {
    if (items->size() != 1 || items->front() == nullptr) break;
    const auto& form = items->front()->form;
    if (const auto* extrusion = std::get_if<Extrusion>(&form)) {
      Vector3 direction = toWorld(extrusion->position(extrusion->direction));
      Normalise(direction);
      return direction;
    }
    const auto* map = std::get_if<MappedItems>(&form);
    if (map == nullptr) break;
    toWorld = Combine(toWorld, map->transform);
    items = &map->items;
  }
  return {};
}

PlaneFrame FrameOf(const Plane& plane) {
  const Vector3& n = plane.normal;
  const bool isSteep = std::abs(n.z) > 0.9;  // the cross product with z would be inaccurate
  PlaneFrame frame;
  frame.origin = plane.point;
  frame.x = Cross(isSteep ? Vector3(0.0, 1.0, 0.0) : Vector3(0.0, 0.0, 1.0), n);
  Normalise(frame.x);
  frame.y = Cross(n, frame.x);
  return frame;
}

/// The largest region of a section in the world; empty if there is none.
std::vector<Point3> Section(const Mesh& mesh, const Plane& plane) {
  const PlaneFrame frame = FrameOf(plane);
  const std::vector<FlatRegion> regions = Slice(mesh, frame);
  std::vector<Point3> outline;
  if (regions.empty()) return outline;
  for (const Point2& p : regions.front().outer) {
    outline.push_back(frame.origin + (p.x * frame.x + p.y * frame.y));
  }
  return outline;
}

/// The plane that decides the direction of an opening. Its normal is zero if there is no direction.
Plane ReferencePlane(const OpeningFacts& facts, const std::optional<SurfaceRegion>& surface,
                     const Mesh& mesh) {
  if (surface && !surface->sweep && !surface->outline.empty()) {
    return {surface->outline.front(), surface->normal};
  }
  Vector3 direction = DirectionOfExtrusion(facts);
  if (Dot(direction, direction) == 0.0) direction = NormalOfLargestFace(mesh);
  return {mesh.points.front(), direction};
}

void AddShape(BuildingOpening& opening, const OpeningFacts& facts,
              const std::optional<SurfaceRegion>& surface, const Mesh& mesh) {
  const Plane plane = ReferencePlane(facts, surface, mesh);
  if (Dot(plane.normal, plane.normal) == 0.0) return;
  const Extent extent = ExtentAlong(mesh, plane);
  const double middle = 0.5 * (extent.low + extent.high);
  const bool isInSurface = surface && !surface->sweep;
  opening.depth = extent.high - extent.low;
  if (isInSurface && extent.low < 0.0 && extent.high > 0.0) {
    opening.outline = Section(mesh, plane);
  }
  if (!opening.outline.empty()) return;
  opening.outline = Section(mesh, {plane.point + middle * plane.normal, plane.normal});
  if (!isInSurface) return;
  for (Point3& point : opening.outline) point += -middle * plane.normal;
}

}  // namespace

BuildingOpening MakeOpening(const OpeningFacts& facts, const std::optional<SurfaceRegion>& surface,
                            BodyMaker& bodies) {
  BuildingOpening opening;
  opening.id = facts.id;
  opening.guid = facts.guid;
  opening.kind = facts.kind;
  opening.fill = facts.fill;
  if (facts.items.empty()) return opening;
  const BodyResult result = bodies.Make(facts.items, facts.placement);
  if (result.fault || result.body.mesh.IsEmpty() || !IsFinite(result.body.mesh)) return opening;
  AddShape(opening, facts, surface, result.body.mesh);
  if (!IsFinite(opening)) {
    opening.outline.clear();
    opening.depth = 0.0;
  }
  return opening;
}

}  // namespace KelIFC::building
