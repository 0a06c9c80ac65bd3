#ifndef KELIFC_BUILDING_SOLID_POLYGON_RING_H_
#define KELIFC_BUILDING_SOLID_POLYGON_RING_H_

#include <cstdint>
#include <vector>

#include "kelifc/building/solid/loops.h"
#include "kelifc/geometry/point.h"

namespace KelIFC::building {

/// Stands for no node.
constexpr std::uint32_t kNoNode = 0xFFFFFFFF;

/// Loops as linked nodes, so that loops can be joined and cut. Each node has a point. The region is
/// to the left of each step from a node to the next one. The points are not owned; they can grow
/// while the ring exists.
class PolygonRing {
 public:
  PolygonRing(const std::vector<Point2>& somePoints, const std::vector<PointLoop>& loops)
      : points(somePoints) {
    for (const PointLoop& loop : loops) AddLoop(loop);
  }

  std::vector<std::uint32_t> point;     ///< by node: the index of its point
  std::vector<std::uint32_t> next;      ///< by node
  std::vector<std::uint32_t> previous;  ///< by node
  std::vector<std::uint32_t> starts;    ///< by loop: its first node

  /// The place of a node.
  const Point2& At(std::uint32_t node) const { return points[point[node]]; }

  /// Adds a node that is not linked.
  std::uint32_t AddNode(std::uint32_t number) {
    point.push_back(number);
    next.push_back(kNoNode);
    previous.push_back(kNoNode);
    return static_cast<std::uint32_t>(point.size() - 1);
  }

  /// Makes `b` the node after `a`.
  void Link(std::uint32_t a, std::uint32_t b) {
    next[a] = b;
    previous[b] = a;
  }

  /// The node of a loop with the smallest x, then the smallest y.
  std::uint32_t LeftmostFrom(std::uint32_t start) const {
    std::uint32_t best = start;
    for (std::uint32_t i = next[start]; i != start; i = next[i]) {
      if (At(i).x < At(best).x || (At(i).x == At(best).x && At(i).y < At(best).y)) best = i;
    }
    return best;
  }

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

  const std::vector<Point2>& points;
};

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_SOLID_POLYGON_RING_H_
