#include "kelifc/building/solid/loops.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

#include "kelifc/building/solid/box_tree.h"
#include "kelifc/building/solid/vector_math.h"

namespace KelIFC::building {

namespace {

constexpr std::size_t kNone = static_cast<std::size_t>(-1);

/// Grows with the angle by which `to` is turned clockwise from `from`: from just above 0 to 4. It
/// is 4 for the same direction.
double ClockwiseTurn(const Vector2& from, const Vector2& to) {
  const double along = Dot(from, to);
  const double across = -Cross(from, to);
  const double sum = std::abs(along) + std::abs(across);
  if (!(sum > 0.0)) return 4.0;
  const double part = across / sum;
  if (across > 0.0) return along >= 0.0 ? part : 2.0 - part;
  if (across < 0.0) return along <= 0.0 ? 2.0 - part : 4.0 + part;
  return along > 0.0 ? 4.0 : 2.0;
}

/// Directed edges by the point that they leave.
class EdgeFan {
 public:
  EdgeFan(const std::vector<Point2>& somePoints, const std::vector<DirectedEdge>& someEdges)
      : points(somePoints),
        edges(someEdges),
        order(someEdges.size()),
        isUsed(someEdges.size(), false) {
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
      return std::pair(edges[a].first, a) < std::pair(edges[b].first, b);
    });
  }

  bool IsUsed(std::size_t edge) const { return isUsed[edge]; }
  void Use(std::size_t edge) { isUsed[edge] = true; }

  /// The edge that follows in a loop which began with `start`; kNone if there is none.
  std::size_t Next(std::size_t edge, std::size_t start) const {
    const auto [from, at] = edges[edge];
    auto entry =
        std::lower_bound(order.begin(), order.end(), at,
                         [&](std::size_t i, std::uint32_t p) { return edges[i].first < p; });
    std::size_t best = kNone;
    double bestTurn = std::numeric_limits<double>::infinity();
    for (; entry != order.end() && edges[*entry].first == at; ++entry) {
      if (isUsed[*entry] && *entry != start) continue;
      const double turn =
          ClockwiseTurn(points[from] - points[at], points[edges[*entry].second] - points[at]);
      if (turn < bestTurn) {
        bestTurn = turn;
        best = *entry;
      }
    }
    return best;
  }

 private:
  const std::vector<Point2>& points;
  const std::vector<DirectedEdge>& edges;
  std::vector<std::size_t> order;
  std::vector<bool> isUsed;
};

/// An edge of a loop, for the search of what is left of a point.
struct LoopEdge {
  Point2 from;
  Point2 to;
  std::size_t loop;
};

std::size_t LeftmostOf(const std::vector<Point2>& points, const PointLoop& loop) {
  std::size_t best = 0;
  for (std::size_t i = 1; i < loop.size(); ++i) {
    const Point2& a = points[loop[i]];
    const Point2& b = points[loop[best]];
    if (a.x < b.x || (a.x == b.x && a.y < b.y)) best = i;
  }
  return best;
}

/// Finds, for a hole, the counter-clockwise loop that contains it.
class Nesting {
 public:
  Nesting(const std::vector<Point2>& somePoints, const std::vector<PointLoop>& someLoops,
          const std::vector<double>& someAreas)
      : points(somePoints), loops(someLoops), areas(someAreas), parents(someLoops.size(), kNone) {
    std::vector<BuildingBox> boxes;
    for (std::size_t i = 0; i < loops.size(); ++i) {
      for (std::size_t k = 0; k < loops[i].size(); ++k) {
        const Point2& from = points[loops[i][k]];
        const Point2& to = points[loops[i][k + 1 < loops[i].size() ? k + 1 : 0]];
        edges.push_back({from, to, i});
        BuildingBox& box = boxes.emplace_back();
        Extend(box, Point3(from.x, from.y, 0.0));
        Extend(box, Point3(to.x, to.y, 0.0));
      }
    }
    tree = BoxTree(boxes);
  }

  /// Holes must be asked from left to right.
  std::size_t ParentOf(std::size_t hole) {
    const std::size_t at = LeftmostOf(points, loops[hole]);
    const std::size_t count = loops[hole].size();
    const Point2& corner = points[loops[hole][at]];
    const Point2& upper = points[loops[hole][(at + 1) % count]];
    const Point2& lower = points[loops[hole][(at + count - 1) % count]];
    // A point beside the corner, which may touch another loop, on the edge that has the hole on its
    // right.
    const Point2& end = upper.y > corner.y ? upper : lower;
    const Point2 place = Between(corner, end, 1.0 / 64.0);
    const std::size_t edge = EdgeLeftOf(place, hole, corner, end);
    std::size_t parent = kNone;
    if (edge != kNone && edges[edge].to.y < edges[edge].from.y) {
      parent = areas[edges[edge].loop] > 0.0 ? edges[edge].loop : parents[edges[edge].loop];
    }
    if (parent == kNone) parent = SmallestAround(place);
    parents[hole] = parent;
    return parent;
  }

 private:
  /// The nearest edge to the left of a point that is not of the loop, and does not run between two
  /// given points: what fills the hole has the same edge.
  std::size_t EdgeLeftOf(const Point2& place, std::size_t loop, const Point2& a,
                         const Point2& b) const {
    const auto isEqual = [](const Point2& p, const Point2& q) { return p.x == q.x && p.y == q.y; };
    constexpr double kNever = std::numeric_limits<double>::infinity();
    std::size_t best = kNone;
    double bestGap = kNever;
    tree.Search(
        [&](const BuildingBox& box) {
          if (box.min.y > place.y || box.max.y < place.y || box.min.x > place.x) return kNever;
          return std::max(0.0, place.x - box.max.x);
        },
        [&](std::uint32_t item) {
          const LoopEdge& edge = edges[item];
          if (edge.loop == loop || (isEqual(edge.from, a) && isEqual(edge.to, b)) ||
              (isEqual(edge.from, b) && isEqual(edge.to, a))) {
            return bestGap;
          }
          // Of two edges in one place, one of which bounds a hole, the region begins at the other.
          const double gap = GapLeftOf(place, edge);
          if (gap < bestGap || (gap == bestGap && gap < kNever && edge.to.y < edge.from.y)) {
            bestGap = gap;
            best = item;
          }
          return bestGap;
        });
    return best;
  }

  /// How far left of the point an edge crosses its horizontal line; infinity if it does not.
  static double GapLeftOf(const Point2& place, const LoopEdge& edge) {
    if ((edge.from.y <= place.y) == (edge.to.y <= place.y)) {
      return std::numeric_limits<double>::infinity();
    }
    // The same for both directions, to the last bit.
    const Point2& low = edge.from.y < edge.to.y ? edge.from : edge.to;
    const Point2& high = edge.from.y < edge.to.y ? edge.to : edge.from;
    const double fraction = (place.y - low.y) / (high.y - low.y);
    const double gap = place.x - (low.x + (high.x - low.x) * fraction);
    return gap >= 0.0 ? gap : std::numeric_limits<double>::infinity();
  }

  /// The smallest counter-clockwise loop around a point. It looks at all edges to the left of the
  /// point, and is called only where loops touch.
  std::size_t SmallestAround(const Point2& place) const {
    constexpr double kNever = std::numeric_limits<double>::infinity();
    std::vector<std::size_t> crossed;
    tree.Search(
        [&](const BuildingBox& box) {
          return box.min.y > place.y || box.max.y < place.y || box.min.x > place.x ? kNever : 0.0;
        },
        [&](std::uint32_t item) {
          if (areas[edges[item].loop] > 0.0 && GapLeftOf(place, edges[item]) != kNever) {
            crossed.push_back(edges[item].loop);
          }
          return kNever;
        });
    std::sort(crossed.begin(), crossed.end());
    std::size_t best = kNone;
    for (std::size_t i = 0; i < crossed.size();) {
      const std::size_t loop = crossed[i];
      std::size_t count = 0;
      for (; i < crossed.size() && crossed[i] == loop; ++i) ++count;
      if (count % 2 == 1 && (best == kNone || areas[loop] < areas[best])) best = loop;
    }
    return best;
  }

  const std::vector<Point2>& points;
  const std::vector<PointLoop>& loops;
  const std::vector<double>& areas;
  std::vector<std::size_t> parents;
  std::vector<LoopEdge> edges;
  BoxTree tree;
};

}  // namespace

TracedLoops TraceLoops(const std::vector<Point2>& points, const std::vector<DirectedEdge>& edges) {
  TracedLoops result;
  EdgeFan fan(points, edges);
  PointLoop loop;
  for (std::size_t start = 0; start < edges.size(); ++start) {
    if (fan.IsUsed(start)) continue;
    loop.clear();
    std::size_t edge = start;
    do {
      fan.Use(edge);
      loop.push_back(edges[edge].first);
      edge = fan.Next(edge, start);
    } while (edge != kNone && edge != start);
    if (edge == kNone) {
      result.isComplete = false;
    } else {
      result.loops.push_back(loop);
    }
  }
  return result;
}

void CancelOpposite(std::vector<DirectedEdge>& edges) {
  const auto ends = [](const DirectedEdge& e) {
    return DirectedEdge(std::min(e.first, e.second), std::max(e.first, e.second));
  };
  std::sort(edges.begin(), edges.end(), [&](const DirectedEdge& a, const DirectedEdge& b) {
    return std::pair(ends(a), a) < std::pair(ends(b), b);
  });
  std::vector<DirectedEdge> kept;
  for (std::size_t i = 0; i < edges.size();) {
    const DirectedEdge both = ends(edges[i]);
    long balance = 0;
    for (; i < edges.size() && ends(edges[i]) == both; ++i) {
      if (edges[i].first != edges[i].second) balance += edges[i] == both ? 1 : -1;
    }
    for (; balance > 0; --balance) kept.push_back(both);
    for (; balance < 0; ++balance) kept.emplace_back(both.second, both.first);
  }
  edges.swap(kept);
}

std::vector<NestedLoop> NestLoops(const std::vector<Point2>& points,
                                  const std::vector<PointLoop>& loops, bool& isComplete) {
  std::vector<NestedLoop> result;
  std::vector<double> areas;
  std::vector<std::size_t> places(loops.size(), kNone);
  std::vector<std::size_t> holes;
  for (std::size_t i = 0; i < loops.size(); ++i) {
    areas.push_back(AreaOf(points, loops[i]));
    if (areas[i] < 0.0) holes.push_back(i);
    if (!(areas[i] > 0.0)) continue;
    places[i] = result.size();
    result.push_back({i, {}});
  }
  if (holes.empty()) return result;
  const auto left = [&](std::size_t loop) {
    return points[loops[loop][LeftmostOf(points, loops[loop])]].x;
  };
  std::vector<std::pair<double, std::size_t>> order;
  order.reserve(holes.size());
  for (const std::size_t hole : holes) order.emplace_back(left(hole), hole);
  std::sort(order.begin(), order.end());
  Nesting nesting(points, loops, areas);
  for (const auto& [x, hole] : order) {
    const std::size_t parent = nesting.ParentOf(hole);
    if (parent == kNone) {
      isComplete = false;
    } else {
      result[places[parent]].holes.push_back(hole);
    }
  }
  return result;
}

double AreaOf(const std::vector<Point2>& points, const PointLoop& loop) {
  double sum = 0.0;
  for (std::size_t i = 1; i + 1 < loop.size(); ++i) {
    sum += Turn(points[loop[0]], points[loop[i]], points[loop[i + 1]]);
  }
  return sum / 2.0;
}

}  // namespace KelIFC::building
