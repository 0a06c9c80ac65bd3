#include "kelifc/building/solid/triangulate.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "kelifc/building/solid/box_tree.h"
#include "kelifc/building/solid/vector_math.h"

namespace KelIFC::building {

namespace {

constexpr std::uint32_t kNone = 0xFFFFFFFF;

bool AreEqual(const Point2& a, const Point2& b) { return a.x == b.x && a.y == b.y; }

/// A region whose holes are joined to its outer loop: a ring of nodes, each with a point.
class Ring {
 public:
  Ring(std::vector<Point2>& somePoints, const std::vector<PointLoop>& loops) : points(somePoints) {
    for (const PointLoop& loop : loops) AddLoop(loop);
    if (loops.size() > 1) JoinHoles();
  }

  std::vector<std::uint32_t> point;
  std::vector<std::uint32_t> next;
  std::vector<std::uint32_t> previous;

  const Point2& At(std::uint32_t node) const { return points[point[node]]; }

 private:
  void AddLoop(const PointLoop& loop) {
    const auto first = static_cast<std::uint32_t>(point.size());
    const auto count = static_cast<std::uint32_t>(loop.size());
    starts.push_back(first);
    for (std::uint32_t i = 0; i < count; ++i) {
      point.push_back(loop[i]);
      next.push_back(first + (i + 1) % count);
      previous.push_back(first + (i + count - 1) % count);
    }
  }

  /// Joins each hole, from left to right, to the nearest edge on its left.
  void JoinHoles() {
    std::vector<BuildingBox> boxes(point.size());
    for (std::uint32_t i = 0; i < point.size(); ++i) {
      Extend(boxes[i], Point3(At(i).x, At(i).y, 0.0));
      Extend(boxes[i], Point3(At(next[i]).x, At(next[i]).y, 0.0));
    }
    const BoxTree tree(boxes);
    parts.resize(point.size(), kNone);
    std::vector<std::uint32_t> corners;
    for (std::size_t i = 1; i < starts.size(); ++i) corners.push_back(LeftmostFrom(starts[i]));
    std::sort(corners.begin(), corners.end(), [&](std::uint32_t a, std::uint32_t b) {
      return std::pair(At(a).x, a) < std::pair(At(b).x, b);
    });
    for (const std::uint32_t corner : corners) Join(tree, corner);
  }

  std::uint32_t LeftmostFrom(std::uint32_t start) const {
    std::uint32_t best = start;
    for (std::uint32_t i = next[start]; i != start; i = next[i]) {
      if (At(i).x < At(best).x || (At(i).x == At(best).x && At(i).y < At(best).y)) best = i;
    }
    return best;
  }

  /// Where the edge from a node to the given end crosses a horizontal line; minus infinity if it
  /// does not.
  double CrossingOf(const Point2& a, const Point2& b, double y) const {
    if ((a.y <= y) == (b.y <= y)) return -std::numeric_limits<double>::infinity();
    return a.x + (b.x - a.x) * ((y - a.y) / (b.y - a.y));
  }

  void Join(const BoxTree& tree, std::uint32_t corner) {
    constexpr double kNever = std::numeric_limits<double>::infinity();
    const Point2 place = At(corner);
    std::uint32_t best = kNone;
    double bestX = -kNever;
    tree.Search(
        [&](const BuildingBox& box) {
          if (box.min.y > place.y || box.max.y < place.y || box.min.x > place.x) return kNever;
          return std::max(0.0, place.x - box.max.x);
        },
        [&](std::uint32_t edge) {
          // Joins have cut the edge into parts, which are a chain.
          for (std::uint32_t i = edge; i != kNone; i = parts[i]) {
            if (i == corner || next[i] == corner) continue;
            const double x = CrossingOf(At(i), At(next[i]), place.y);
            // The region is to the right of edges that run down.
            if (x <= place.x && x > bestX && At(next[i]).y < At(i).y) {
              bestX = x;
              best = i;
            }
          }
          return best == kNone ? kNever : place.x - bestX;
        });
    if (best != kNone) Bridge(best, corner, {bestX, place.y});
  }

  /// Runs from the edge of `node` at `landing` to the corner, round its hole, and back.
  void Bridge(std::uint32_t node, std::uint32_t corner, const Point2& landing) {
    const auto number = static_cast<std::uint32_t>(points.size());
    points.push_back(landing);
    const std::uint32_t after = next[node];
    const std::uint32_t before = previous[corner];
    const std::uint32_t out = AddNode(number);
    const std::uint32_t back = AddNode(point[corner]);
    const std::uint32_t landed = AddNode(number);
    Link(node, out);
    Link(out, corner);
    Link(before, back);
    Link(back, landed);
    Link(landed, after);
    parts[landed] = parts[node];
    parts[node] = landed;
  }

  std::uint32_t AddNode(std::uint32_t number) {
    point.push_back(number);
    next.push_back(kNone);
    previous.push_back(kNone);
    parts.push_back(kNone);
    return static_cast<std::uint32_t>(point.size() - 1);
  }

  void Link(std::uint32_t a, std::uint32_t b) {
    next[a] = b;
    previous[b] = a;
  }

  std::vector<Point2>& points;
  std::vector<std::uint32_t> starts;  // of the loops
  std::vector<std::uint32_t> parts;   // the next part of the edge of a node
};

/// Cuts ears off a ring.
class EarCutter {
 public:
  explicit EarCutter(Ring& someRing) : ring(someRing) {
    FindReflexNodes();
    budget = 1000 + 100 * ring.point.size();
  }

  std::vector<Triangle2> Cut() {
    std::vector<Triangle2> result;
    std::uint32_t node = 0;
    std::size_t left = CountFrom(node);
    std::size_t failures = 0;
    while (left >= 3) {
      const bool isForced = failures > left;
      if (isForced ? IsTolerable(node, failures > 2 * left) : IsEar(node)) {
        const std::uint32_t a = ring.previous[node];
        const std::uint32_t c = ring.next[node];
        if (TurnAt(node) > 0.0) result.push_back({ring.point[a], ring.point[node], ring.point[c]});
        ring.next[a] = c;
        ring.previous[c] = a;
        isGone[node] = true;
        --left;
        failures = 0;
        node = ring.next[c];
      } else {
        ++failures;
        node = ring.next[node];
      }
    }
    return result;
  }

 private:
  double TurnAt(std::uint32_t node) const {
    return Turn(ring.At(ring.previous[node]), ring.At(node), ring.At(ring.next[node]));
  }

  std::size_t CountFrom(std::uint32_t start) const {
    std::size_t count = 1;
    for (std::uint32_t i = ring.next[start]; i != start; i = ring.next[i]) ++count;
    return count;
  }

  void FindReflexNodes() {
    isGone.assign(ring.point.size(), false);
    std::vector<BuildingBox> boxes;
    for (std::uint32_t i = 0; i < ring.point.size(); ++i) {
      if (TurnAt(i) > 0.0) continue;
      reflex.push_back(i);
      Extend(boxes.emplace_back(), Point3(ring.At(i).x, ring.At(i).y, 0.0));
    }
    tree = BoxTree(boxes);
  }

  /// A vertex without a reflex node in its triangle. Vertices on a straight line are cut off, too.
  bool IsEar(std::uint32_t node) {
    const double turn = TurnAt(node);
    if (turn == 0.0) return true;
    if (turn < 0.0) return false;
    if (budget == 0 || reflex.empty()) return true;
    const std::array<Point2, 3> corners = {ring.At(ring.previous[node]), ring.At(node),
                                           ring.At(ring.next[node])};
    BuildingBox box;
    for (const Point2& corner : corners) Extend(box, Point3(corner.x, corner.y, 0.0));
    bool isFree = true;
    tree.ForEachNear(box, 0.0, [&](std::uint32_t item) {
      if (!isFree || isGone[reflex[item]]) return;
      if (budget > 0) --budget;
      if (IsInside(ring.At(reflex[item]), corners)) isFree = false;
    });
    return isFree;
  }

  static bool IsInside(const Point2& p, const std::array<Point2, 3>& corners) {
    if (AreEqual(p, corners[0]) || AreEqual(p, corners[1]) || AreEqual(p, corners[2])) return false;
    return Turn(corners[0], corners[1], p) >= 0.0 && Turn(corners[1], corners[2], p) >= 0.0 &&
           Turn(corners[2], corners[0], p) >= 0.0;
  }

  /// What is cut off where no vertex is an ear, as in a region that crosses itself.
  bool IsTolerable(std::uint32_t node, bool isDesperate) const {
    return isDesperate || TurnAt(node) > 0.0;
  }

  Ring& ring;
  std::vector<bool> isGone;
  std::vector<std::uint32_t> reflex;
  BoxTree tree;
  std::size_t budget = 0;
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

}  // namespace

std::vector<Triangle2> Triangulate(std::vector<Point2>& points,
                                   const std::vector<PointLoop>& loops) {
  std::vector<Triangle2> result;
  if (loops.empty() || loops[0].size() < 3) return result;
  if (loops.size() == 1 && IsConvex(points, loops[0])) {
    const PointLoop& loop = loops[0];
    for (std::size_t i = 1; i + 1 < loop.size(); ++i) {
      if (Turn(points[loop[0]], points[loop[i]], points[loop[i + 1]]) > 0.0) {
        result.push_back({loop[0], loop[i], loop[i + 1]});
      }
    }
    return result;
  }
  Ring ring(points, loops);
  return EarCutter(ring).Cut();
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
