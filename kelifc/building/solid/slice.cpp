#include "kelifc/building/solid/slice.h"

#include <algorithm>

#include "kelifc/building/solid/loops.h"
#include "kelifc/building/solid/mesh_tools.h"
#include "kelifc/building/solid/plane_section.h"
#include "kelifc/building/solid/vector_math.h"

namespace KelIFC::building {

namespace {

/// Loops in the coordinates of the plane.
struct SectionLoops {
  std::vector<Point2> points;
  std::vector<PointLoop> loops;
  bool isComplete = true;
};

SectionLoops LoopsOf(const Mesh& mesh, const PlaneFrame& plane) {
  // Without a tolerance each edge crosses or does not, and no face is in the plane.
  PlaneSection section(mesh, plane.origin, Unit(Cross(plane.x, plane.y)), -1.0);
  std::vector<PointLoop> parts;
  std::vector<DirectedEdge> edges;
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    if (!section.Crosses(face)) continue;
    section.AddFace(face, parts, edges);
    parts.clear();
  }
  SectionLoops result;
  for (const Point3& point : section.Points()) {
    const Vector3 v = point - plane.origin;
    result.points.emplace_back(Dot(v, plane.x), Dot(v, plane.y));
  }
  CancelOpposite(edges);
  TracedLoops traced = TraceLoops(result.points, edges);
  result.loops = std::move(traced.loops);
  result.isComplete = traced.isComplete;
  return result;
}

double DistanceToLine(const Point2& p, const Point2& a, const Point2& b) {
  const double length = Distance(a, b);
  return length > 0.0 ? std::abs(Turn(a, b, p)) / length : Distance(a, p);
}

/// Drops points that repeat or lie on the line between their neighbours.
Outline Simplify(const std::vector<Point2>& points, const PointLoop& loop, double tolerance) {
  Outline result;
  const auto isStraight = [&](const Point2& a, const Point2& b, const Point2& c) {
    if (Distance(a, b) <= tolerance) return true;
    // The next point must lie further along, otherwise b is the tip of a spike.
    return Dot(c - b, b - a) >= 0.0 && DistanceToLine(b, a, c) <= tolerance;
  };
  for (const std::uint32_t number : loop) {
    const Point2& point = points[number];
    while (result.size() > 1 && isStraight(result[result.size() - 2], result.back(), point)) {
      result.pop_back();
    }
    if (!result.empty() && Distance(result.back(), point) <= tolerance) continue;
    result.push_back(point);
  }
  // The corner where the loop closes.
  std::size_t first = 0;
  while (result.size() - first > 2) {
    if (isStraight(result[result.size() - 2], result.back(), result[first]) ||
        Distance(result.back(), result[first]) <= tolerance) {
      result.pop_back();
    } else if (isStraight(result.back(), result[first], result[first + 1])) {
      ++first;
    } else {
      break;
    }
  }
  result.erase(result.begin(), result.begin() + static_cast<long>(first));
  if (result.size() < 3) result.clear();
  return result;
}

double AreaOf(const Outline& outline) {
  double sum = 0.0;
  for (std::size_t i = 1; i + 1 < outline.size(); ++i) {
    sum += Turn(outline[0], outline[i], outline[i + 1]);
  }
  return sum / 2.0;
}

}  // namespace

std::vector<FlatRegion> RegionsOfLoops(const std::vector<Point2>& points,
                                       const std::vector<PointLoop>& loops, double tolerance,
                                       bool& isComplete) {
  std::vector<FlatRegion> result;
  for (const NestedLoop& loop : NestLoops(points, loops, isComplete)) {
    FlatRegion region;
    region.outer = Simplify(points, loops[loop.outer], tolerance);
    if (!(AreaOf(region.outer) > 0.0)) continue;
    for (const std::size_t hole : loop.holes) {
      Outline outline = Simplify(points, loops[hole], tolerance);
      if (AreaOf(outline) < 0.0) region.holes.push_back(std::move(outline));
    }
    result.push_back(std::move(region));
  }
  std::stable_sort(result.begin(), result.end(), [](const FlatRegion& a, const FlatRegion& b) {
    return AreaOf(a.outer) > AreaOf(b.outer);
  });
  return result;
}

std::vector<FlatRegion> Slice(const Mesh& mesh, const PlaneFrame& plane, double tolerance) {
  if (mesh.IsEmpty() || !IsUsable(plane.origin) || !IsUsable(plane.x) || !IsUsable(plane.y)) {
    return {};
  }
  SectionLoops section = LoopsOf(mesh, plane);
  // Faces that do not share their points leave gaps.
  if (!section.isComplete) section = LoopsOf(Weld(mesh, kWeldDistance), plane);
  bool isComplete = section.isComplete;
  return RegionsOfLoops(section.points, section.loops, tolerance, isComplete);
}

}  // namespace KelIFC::building
