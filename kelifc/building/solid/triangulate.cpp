#include "kelifc/building/solid/triangulate.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include "kelifc/building/solid/box_tree.h"
#include "kelifc/building/solid/join_loops.h"
#include "kelifc/building/solid/polygon_ring.h"
#include "kelifc/building/solid/vector_math.h"

namespace KelIFC::building {

namespace {

/// Joins the holes of a region to its outer loop along horizontal lines. The ends of the lines are
/// appended to the points.
class HoleBridges {
 public:
  HoleBridges(PolygonRing& someRing, std::vector<Point2>& somePoints)
      : ring(someRing), points(somePoints) {}

  /// Joins each hole, from left to right, to the nearest edge on its left.
  void Join() {
    std::vector<BuildingBox> boxes(ring.point.size());
    for (std::uint32_t i = 0; i < ring.point.size(); ++i) {
      Extend(boxes[i], Point3(ring.At(i).x, ring.At(i).y, 0.0));
      Extend(boxes[i], Point3(ring.At(ring.next[i]).x, ring.At(ring.next[i]).y, 0.0));
    }
    const BoxTree tree(boxes);
    parts.resize(ring.point.size(), kNoNode);
    std::vector<std::uint32_t> corners;
    for (std::size_t i = 1; i < ring.starts.size(); ++i)
      corners.push_back(ring.LeftmostFrom(ring.starts[i]));
    std::sort(corners.begin(), corners.end(), [&](std::uint32_t a, std::uint32_t b) {
      return std::pair(ring.At(a).x, a) < std::pair(ring.At(b).x, b);
    });
    for (const std::uint32_t corner : corners) Join(tree, corner);
  }

 private:
  /// Where the edge from a node to the given end crosses a horizontal line; minus infinity if it
  /// does not.
  double CrossingOf(const Point2& a, const Point2& b, double y) const {
    if ((a.y <= y) == (b.y <= y)) return -std::numeric_limits<double>::infinity();
    return a.x + (b.x - a.x) * ((y - a.y) / (b.y - a.y));
  }

  void Join(const BoxTree& tree, std::uint32_t corner) {
    constexpr double kNever = std::numeric_limits<double>::infinity();
    const Point2 place = ring.At(corner);
    std::uint32_t best = kNoNode;
    double bestX = -kNever;
    tree.Search(
        [&](const BuildingBox& box) {
          if (box.min.y > place.y || box.max.y < place.y || box.min.x > place.x) return kNever;
          return std::max(0.0, place.x - box.max.x);
        },
        [&](std::uint32_t edge) {
          // Joins have cut the edge into parts, which are a chain.
          for (std::uint32_t i = edge; i != kNoNode; i = parts[i]) {
            if (i == corner || ring.next[i] == corner) continue;
            const double x = CrossingOf(ring.At(i), ring.At(ring.next[i]), place.y);
            // The region is to the right of edges that run down.
            if (x <= place.x && x > bestX && ring.At(ring.next[i]).y < ring.At(i).y) {
              bestX = x;
              best = i;
            }
          }
          return best == kNoNode ? kNever : place.x - bestX;
        });
    if (best != kNoNode) Bridge(best, corner, {bestX, place.y});
  }

  /// Runs from the edge of `node` at `landing` to the corner, round its hole, and back.
  void Bridge(std::uint32_t node, std::uint32_t corner, const Point2& landing) {
    const auto number = static_cast<std::uint32_t>(points.size());
    points.push_back(landing);
    const std::uint32_t after = ring.next[node];
    const std::uint32_t before = ring.previous[corner];
    const std::uint32_t out = AddNode(number);
    const std::uint32_t back = AddNode(ring.point[corner]);
    const std::uint32_t landed = AddNode(number);
    ring.Link(node, out);
    ring.Link(out, corner);
    ring.Link(before, back);
    ring.Link(back, landed);
    ring.Link(landed, after);
    parts[landed] = parts[node];
    parts[node] = landed;
  }

  std::uint32_t AddNode(std::uint32_t number) {
    parts.push_back(kNoNode);
    return ring.AddNode(number);
  }

  PolygonRing& ring;
  std::vector<Point2>& points;
  std::vector<std::uint32_t> parts;  // the next part of the edge of a node
};

bool IsConvex(const std::vector<Point2>& points, const PointLoop& loop) {
  for (std::size_t i = 0; i < loop.size(); ++i) {
    const std::size_t j = i + 1 < loop.size() ? i + 1 : 0;
    const std::size_t k = j + 1 < loop.size() ? j + 1 : 0;
    if (Turn(points[loop[i]], points[loop[j]], points[loop[k]]) < 0.0) return false;
  }
  // More than four corners may wind round more than once, so they must also be seen in order.
  for (std::size_t i = 1; loop.size() > 4 && i + 1 < loop.size(); ++i) {
    if (Turn(points[loop[0]], points[loop[i]], points[loop[i + 1]]) < 0.0) return false;
  }
  return true;
}

/// The triangles of a region that needs no cutting: without an area or convex. None for others.
std::optional<std::vector<Triangle2>> FanOf(const std::vector<Point2>& points,
                                            const std::vector<PointLoop>& loops) {
  std::vector<Triangle2> result;
  if (loops.empty() || loops[0].size() < 3) return result;
  if (loops.size() > 1 || !IsConvex(points, loops[0])) return std::nullopt;
  const PointLoop& loop = loops[0];
  for (std::size_t i = 1; i + 1 < loop.size(); ++i) {
    if (Turn(points[loop[0]], points[loop[i]], points[loop[i + 1]]) > 0.0) {
      result.push_back({loop[0], loop[i], loop[i + 1]});
    }
  }
  return result;
}

}  // namespace

std::vector<Triangle2> Triangulate(std::vector<Point2>& points,
                                   const std::vector<PointLoop>& loops) {
  if (std::optional<std::vector<Triangle2>> fan = FanOf(points, loops)) return std::move(*fan);
  PolygonRing ring(points, loops);
  if (loops.size() > 1) HoleBridges(ring, points).Join();
  return CutEars(ring, ClockwiseParts::kLeftOut);
}

std::vector<Triangle2> TriangulateCorners(const std::vector<Point2>& points,
                                          const std::vector<PointLoop>& loops) {
  if (std::any_of(loops.begin(), loops.end(), [](const PointLoop& loop) { return loop.empty(); })) {
    return {};
  }
  if (std::optional<std::vector<Triangle2>> fan = FanOf(points, loops)) return std::move(*fan);
  PolygonRing ring(points, loops);
  if (loops.size() > 1) JoinLoops(ring);
  return CutEars(ring, ClockwiseParts::kKept);
}

void AppendTriangles(const Mesh& mesh, std::size_t face, std::vector<Triangle3>& triangles) {
  const Mesh::Loop outer = mesh.LoopOf(face, 0);
  if (outer.size() < 3) return;
  if (outer.size() == 3 && mesh.LoopCount(face) == 1) {
    triangles.push_back({mesh.points[outer[0]], mesh.points[outer[1]], mesh.points[outer[2]]});
    return;
  }
  const Vector3 normal = Unit(AreaVectorOf(mesh, face));
  if (Length(normal) == 0.0) return;
  const Projection plane(mesh.points[outer[0]], normal);
  std::vector<Point2> points;
  std::vector<Point3> places;
  std::vector<PointLoop> loops;
  for (std::size_t i = 0; i < mesh.LoopCount(face); ++i) {
    PointLoop& loop = loops.emplace_back();
    for (const Mesh::Index p : mesh.LoopOf(face, i)) {
      loop.push_back(static_cast<std::uint32_t>(points.size()));
      points.push_back(plane(mesh.points[p]));
      places.push_back(mesh.points[p]);
    }
  }
  for (const Triangle2& t : Triangulate(points, loops)) {
    Triangle3& result = triangles.emplace_back();
    for (std::size_t i = 0; i < 3; ++i) {
      const Point2& p = points[t[i]];
      result[i] =
          t[i] < places.size() ? places[t[i]] : plane.origin + (p.x * plane.x + p.y * plane.y);
    }
  }
}

}  // namespace KelIFC::building
