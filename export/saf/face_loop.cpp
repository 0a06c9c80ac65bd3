#include "export/saf/face_loop.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

#include "kelifc/geometry/point.h"

namespace KelIFC::exporting::saf {
namespace {

// The largest number of points that the search for the bridges of one face visits.
constexpr std::size_t kMostVisits = 20'000'000;
constexpr std::size_t kNone = std::numeric_limits<std::size_t>::max();

// A point of a loop: its place in the mesh and its place in the plane of the face.
struct Vertex {
  Mesh::Index index;
  Point2 place;
};

using Loop = std::vector<Vertex>;

// Twice the area of a loop with its direction.
Vector3 NormalOf(const Mesh& mesh, const Mesh::Loop& loop) {
  Vector3 normal;
  for (std::size_t i = 1; i + 1 < loop.size(); ++i) {
    const Point3& first = mesh.points[loop[0]];
    normal = normal + Cross(mesh.points[loop[i]] - first, mesh.points[loop[i + 1]] - first);
  }
  return normal;
}

// Drops the coordinate along which the normal is longest, such that the loop stays
// counter-clockwise.
Point2 PlaceOf(const Point3& point, const Vector3& normal) {
  const double x = std::abs(normal.x);
  const double y = std::abs(normal.y);
  const double z = std::abs(normal.z);
  if (z >= x && z >= y) return normal.z < 0.0 ? Point2(point.y, point.x) : Point2(point.x, point.y);
  if (x >= y) return normal.x < 0.0 ? Point2(point.z, point.y) : Point2(point.y, point.z);
  return normal.y < 0.0 ? Point2(point.x, point.z) : Point2(point.z, point.x);
}

Loop FlatLoop(const Mesh& mesh, const Mesh::Loop& loop, const Vector3& normal) {
  Loop flat;
  flat.reserve(loop.size());
  for (const Mesh::Index index : loop) flat.push_back({index, PlaceOf(mesh.points[index], normal)});
  return flat;
}

std::size_t RightmostOf(const Loop& loop) {
  const auto at = std::max_element(loop.begin(), loop.end(), [](const Vertex& a, const Vertex& b) {
    return a.place.x < b.place.x;
  });
  return static_cast<std::size_t>(at - loop.begin());
}

bool IsInTriangle(const Point2& p, const Point2& a, const Point2& b, const Point2& c) {
  const double ab = Cross(b - a, p - a);
  const double bc = Cross(c - b, p - b);
  const double ca = Cross(a - c, p - c);
  return (ab >= 0.0 && bc >= 0.0 && ca >= 0.0) || (ab <= 0.0 && bc <= 0.0 && ca <= 0.0);
}

// Where the ray from a point to the right meets the loop first.
struct Hit {
  double x = std::numeric_limits<double>::infinity();
  std::size_t corner = kNone;  // the right end of the edge that is hit
};

Hit CastRay(const Loop& loop, const Point2& from) {
  Hit hit;
  for (std::size_t i = 0; i < loop.size(); ++i) {
    const std::size_t next = i + 1 < loop.size() ? i + 1 : 0;
    const Point2& a = loop[i].place;
    const Point2& b = loop[next].place;
    if (a.y > from.y || b.y < from.y || a.y == b.y) continue;  // not an edge that goes up
    const double x = a.x + (b.x - a.x) * ((from.y - a.y) / (b.y - a.y));
    if (x < from.x || x >= hit.x) continue;
    hit.x = x;
    hit.corner = a.x > b.x ? i : next;
  }
  return hit;
}

// The corner of the loop that a straight line from a point to the left of it reaches without
// crossing the loop. None if the point lies outside.
std::size_t FindVisible(const Loop& loop, const Point2& from) {
  const Hit hit = CastRay(loop, from);
  if (hit.corner == kNone) return kNone;
  const Point2 target = loop[hit.corner].place;
  const Point2 at(hit.x, from.y);
  std::size_t visible = hit.corner;
  double least = std::numeric_limits<double>::infinity();
  double nearest = least;
  for (std::size_t i = 0; i < loop.size(); ++i) {
    const Point2& place = loop[i].place;
    if (place.x < from.x || (place.x == target.x && place.y == target.y)) continue;
    if (!IsInTriangle(place, from, at, target)) continue;
    const Vector2 way = place - from;
    const double steepness = way.x > 0.0 ? std::abs(way.y) / way.x : 0.0;
    if (steepness > least || (steepness == least && way.x >= nearest)) continue;
    least = steepness;
    nearest = way.x;
    visible = i;
  }
  return visible;
}

// Inserts a hole, which begins and ends at `start`, after the corner of the loop.
void Insert(Loop& loop, std::size_t corner, const Loop& hole, std::size_t start) {
  Loop inserted;
  inserted.reserve(hole.size() + 2);
  for (std::size_t i = 0; i <= hole.size(); ++i) {
    inserted.push_back(hole[(start + i) % hole.size()]);
  }
  inserted.push_back(loop[corner]);
  loop.insert(loop.begin() + static_cast<std::ptrdiff_t>(corner) + 1, inserted.begin(),
              inserted.end());
}

// The holes, the one that reaches farthest to the right first: its bridge cannot cross another
// hole.
std::vector<Loop> HolesOf(const Mesh& mesh, std::size_t face, const Vector3& normal) {
  std::vector<Loop> holes;
  for (std::size_t i = 1; i < mesh.LoopCount(face); ++i) {
    Loop hole = FlatLoop(mesh, mesh.LoopOf(face, i), normal);
    if (hole.size() >= 3) holes.push_back(std::move(hole));
  }
  std::stable_sort(holes.begin(), holes.end(), [](const Loop& a, const Loop& b) {
    return a[RightmostOf(a)].place.x > b[RightmostOf(b)].place.x;
  });
  return holes;
}

}  // namespace

FaceLoop SingleLoopOf(const Mesh& mesh, std::size_t face) {
  const Mesh::Loop outer = mesh.LoopOf(face, 0);
  FaceLoop result;
  if (mesh.LoopCount(face) == 1) {
    result.points.assign(outer.begin(), outer.end());
    return result;
  }
  const Vector3 normal = NormalOf(mesh, outer);
  Loop loop = FlatLoop(mesh, outer, normal);
  std::size_t visits = 0;
  for (const Loop& hole : HolesOf(mesh, face, normal)) {
    visits += loop.size();
    const std::size_t start = RightmostOf(hole);
    const std::size_t corner = visits > kMostVisits ? kNone : FindVisible(loop, hole[start].place);
    if (corner == kNone) {
      ++result.lostHoles;
    } else {
      Insert(loop, corner, hole, start);
    }
  }
  for (const Vertex& vertex : loop) result.points.push_back(vertex.index);
  return result;
}

}  // namespace KelIFC::exporting::saf
