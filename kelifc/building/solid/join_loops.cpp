#include "kelifc/building/solid/join_loops.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <tuple>
#include <vector>

#include "kelifc/building/solid/box_tree.h"
#include "kelifc/building/solid/vector_math.h"

namespace KelIFC::building {
namespace {

constexpr double kNever = std::numeric_limits<double>::infinity();

bool IsBefore(const Point2& a, const Point2& b) { return std::tie(a.x, a.y) < std::tie(b.x, b.y); }

/// Joins holes from left to right. Above and below the leftmost point of a hole there is an edge.
/// Between the two edges the join goes left to the nearest point. Nothing is between the edges on
/// that way, so joins cross neither edges nor each other.
class LoopJoiner {
 public:
  explicit LoopJoiner(PolygonRing& someRing)
      : ring(someRing),
        ends(ring.next),
        copies(ring.point.size(), kNoNode),
        budget(1000 + 100 * ring.point.size()) {
    std::vector<BuildingBox> edges(ends.size());
    std::vector<BuildingBox> nodes(ends.size());
    for (std::uint32_t i = 0; i < ends.size(); ++i) {
      Extend(nodes[i], Point3(ring.At(i).x, ring.At(i).y, 0.0));
      edges[i] = nodes[i];
      Extend(edges[i], Point3(ring.At(ends[i]).x, ring.At(ends[i]).y, 0.0));
    }
    edgeTree = BoxTree(edges);
    nodeTree = BoxTree(nodes);
  }

  void Join() {
    std::vector<std::uint32_t> corners;
    for (std::size_t i = 1; i < ring.starts.size(); ++i) {
      corners.push_back(ring.LeftmostFrom(ring.starts[i]));
    }
    std::sort(corners.begin(), corners.end(), [&](std::uint32_t a, std::uint32_t b) {
      return IsBefore(ring.At(a), ring.At(b)) || (!IsBefore(ring.At(b), ring.At(a)) && a < b);
    });
    for (const std::uint32_t corner : corners) JoinFrom(corner);
  }

 private:
  /// The height of the edge that begins at a node, at a given x.
  double HeightOf(std::uint32_t edge, double x) const {
    const Point2& a = ring.At(edge);
    const Point2& b = ring.At(ends[edge]);
    return a.x == b.x ? a.y : a.y + (b.y - a.y) * ((x - a.x) / (b.x - a.x));
  }

  /// The nearest edge above a point (side 1), or below it (side -1). The region is below edges that
  /// run to the left, and above edges that run to the right.
  std::uint32_t EdgeBeside(const Point2& place, double side) const {
    std::uint32_t best = kNoNode;
    double bestGap = kNever;
    edgeTree.Search(
        [&](const BuildingBox& box) {
          if (box.min.x > place.x || box.max.x < place.x) return kNever;
          const double nearest = side > 0.0 ? box.min.y - place.y : place.y - box.max.y;
          const double farthest = side > 0.0 ? box.max.y - place.y : place.y - box.min.y;
          return farthest < 0.0 ? kNever : std::max(0.0, nearest);
        },
        [&](std::uint32_t edge) {
          const std::uint32_t from = side > 0.0 ? ends[edge] : edge;
          const std::uint32_t to = side > 0.0 ? edge : ends[edge];
          if (IsBefore(ring.At(from), place) && IsBefore(place, ring.At(to))) {
            const double gap = side * (HeightOf(edge, place.x) - place.y);
            if (gap >= 0.0 && gap < bestGap) {
              bestGap = gap;
              best = edge;
            }
          }
          return bestGap;
        });
    return best;
  }

  /// The rightmost node before a point between two edges; it can be the left end of an edge.
  std::uint32_t NodeBefore(const Point2& place, std::uint32_t floor, std::uint32_t ceiling) {
    std::uint32_t best = floor;
    if (IsBefore(ring.At(best), ring.At(ends[ceiling]))) best = ends[ceiling];
    const double left = ring.At(best).x;
    const double low = std::min(HeightOf(floor, left), HeightOf(floor, place.x));
    const double high = std::max(HeightOf(ceiling, left), HeightOf(ceiling, place.x));
    nodeTree.Search(
        [&](const BuildingBox& box) {
          if (box.max.x < ring.At(best).x || box.min.x > place.x) return kNever;
          if (box.max.y < low || box.min.y > high) return kNever;
          return std::max(0.0, place.x - box.max.x);
        },
        [&](std::uint32_t node) {
          if (budget == 0) return -1.0;
          --budget;
          const Point2& p = ring.At(node);
          if (IsBefore(ring.At(best), p) && IsBefore(p, place) &&
              Turn(ring.At(floor), ring.At(ends[floor]), p) > 0.0 &&
              Turn(ring.At(ceiling), ring.At(ends[ceiling]), p) > 0.0) {
            best = node;
          }
          return place.x - ring.At(best).x;
        });
    return best;
  }

  /// True if the way from a node to a point begins inside of the region.
  bool IsInSector(std::uint32_t node, const Point2& place) const {
    const Point2& before = ring.At(ring.previous[node]);
    const Point2& at = ring.At(node);
    const Point2& after = ring.At(ring.next[node]);
    const bool isLeftOfFirst = Turn(before, at, place) > 0.0;
    const bool isLeftOfSecond = Turn(at, after, place) > 0.0;
    return Turn(before, at, after) > 0.0 ? isLeftOfFirst && isLeftOfSecond
                                         : isLeftOfFirst || isLeftOfSecond;
  }

  void JoinFrom(std::uint32_t corner) {
    const Point2 place = ring.At(corner);
    const std::uint32_t ceiling = EdgeBeside(place, 1.0);
    const std::uint32_t floor = EdgeBeside(place, -1.0);
    if (ceiling == kNoNode || floor == kNoNode) return;
    const std::uint32_t first = NodeBefore(place, floor, ceiling);
    std::uint32_t node = first;
    while (node != kNoNode && !IsInSector(node, place)) node = copies[node];
    Connect(node == kNoNode ? first : node, corner);
  }

  /// Runs from a node to the corner, round its hole, and back.
  void Connect(std::uint32_t node, std::uint32_t corner) {
    const std::uint32_t after = ring.next[node];
    const std::uint32_t before = ring.previous[corner];
    const std::uint32_t back = Copy(corner);
    const std::uint32_t landed = Copy(node);
    ring.Link(node, corner);
    ring.Link(before, back);
    ring.Link(back, landed);
    ring.Link(landed, after);
  }

  std::uint32_t Copy(std::uint32_t node) {
    const std::uint32_t copy = ring.AddNode(ring.point[node]);
    copies.push_back(copies[node]);
    copies[node] = copy;
    return copy;
  }

  PolygonRing& ring;
  std::vector<std::uint32_t> ends;    // by original node: where its edge ends
  std::vector<std::uint32_t> copies;  // by node: the next node with the same point
  std::size_t budget = 0;
  BoxTree edgeTree;
  BoxTree nodeTree;
};

}  // namespace

void JoinLoops(PolygonRing& ring) { LoopJoiner(ring).Join(); }

}  // namespace KelIFC::building
