#include "kelifc/building/solid/rings.h"

#include <algorithm>
#include <array>

#include "kelifc/building/solid/vector_math.h"

namespace KelIFC::building {

namespace {

/// True if four points lie in a plane within a thousandth of the distance that welds points.
bool IsPlane(const Mesh& mesh, const std::array<Mesh::Index, 4>& corners) {
  const Point3& origin = mesh.points[corners[0]];
  const Vector3 a = mesh.points[corners[1]] - origin;
  const Vector3 b = mesh.points[corners[2]] - origin;
  const Vector3 c = mesh.points[corners[3]] - origin;
  const Vector3 normal = Cross(b, FromTo(a, c));
  const double length = Length(normal);
  return std::abs(Dot(a, normal)) <= kWeldDistance * 0.1 * length;
}

void AddSide(Mesh& mesh, const std::array<Mesh::Index, 4>& corners) {
  std::vector<Mesh::Index> loop;
  for (const Mesh::Index corner : corners) {
    if (loop.empty() || loop.back() != corner) loop.push_back(corner);
  }
  while (loop.size() > 1 && loop.front() == loop.back()) loop.pop_back();
  if (loop.size() < 3) return;
  if (loop.size() == 3 || IsPlane(mesh, corners)) {
    mesh.AddFace(loop);
    return;
  }
  mesh.AddFace({corners[0], corners[1], corners[2]});
  mesh.AddFace({corners[0], corners[2], corners[3]});
}

void AddEnd(Mesh& mesh, const RingSweep& sweep, const std::vector<Mesh::Index>& ring,
            bool isStart) {
  mesh.BeginFace();
  std::size_t first = 0;
  for (const std::size_t size : sweep.loopSizes) {
    std::vector<Mesh::Index> loop(ring.begin() + static_cast<long>(first),
                                  ring.begin() + static_cast<long>(first + size));
    if (isStart) std::reverse(loop.begin(), loop.end());
    mesh.AddLoop(loop);
    first += size;
  }
}

/// True if all points of a ring are one, as at the tip of a cone.
bool IsPoint(const std::vector<Mesh::Index>& ring) {
  return std::all_of(ring.begin(), ring.end(), [&](Mesh::Index i) { return i == ring.front(); });
}

}  // namespace

std::vector<std::size_t> LoopSizesOf(const FlatRegion& region) {
  std::vector<std::size_t> sizes = {region.outer.size()};
  for (const Outline& hole : region.holes) sizes.push_back(hole.size());
  return sizes;
}

std::vector<Point2> PointsOf(const FlatRegion& region) {
  std::vector<Point2> points = region.outer;
  for (const Outline& hole : region.holes) points.insert(points.end(), hole.begin(), hole.end());
  return points;
}

Mesh::Index AddPoint(Mesh& mesh, const Point3& point) {
  mesh.points.push_back(point);
  return static_cast<Mesh::Index>(mesh.points.size() - 1);
}

void AddSweep(Mesh& mesh, const RingSweep& sweep) {
  if (sweep.rings.size() < 2) return;
  for (std::size_t station = 0; station + 1 < sweep.rings.size(); ++station) {
    const std::vector<Mesh::Index>& from = sweep.rings[station];
    const std::vector<Mesh::Index>& to = sweep.rings[station + 1];
    std::size_t first = 0;
    for (const std::size_t size : sweep.loopSizes) {
      for (std::size_t i = first; i < first + size; ++i) {
        const std::size_t j = i + 1 < first + size ? i + 1 : first;
        AddSide(mesh, {from[i], from[j], to[j], to[i]});
      }
      first += size;
    }
  }
  if (sweep.isRound) return;
  if (!IsPoint(sweep.rings.front())) AddEnd(mesh, sweep, sweep.rings.front(), true);
  if (!IsPoint(sweep.rings.back())) AddEnd(mesh, sweep, sweep.rings.back(), false);
}

}  // namespace KelIFC::building
