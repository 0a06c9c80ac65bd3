#include "kelifc/building/profile/loop_check.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <set>
#include <vector>

namespace KelIFC::building {

namespace {

constexpr std::size_t kMostPairwise = 512;
constexpr std::size_t kMostDirectWork = 20'000'000;  // pairs of a point and an edge

bool IsBefore(const Point2& a, const Point2& b) { return a.x != b.x ? a.x < b.x : a.y < b.y; }

// An edge with its ends from left to right. Vertical edges go up.
struct SweptEdge {
  Point2 left;
  Point2 right;
  std::uint32_t loop = 0;
  bool isForward = true;  // the loop goes from left to right, so the region is above the edge

  // Twice the area of the triangle; positive if the point is above.
  double Side(const Point2& point) const { return Cross(right - left, point - left); }

  // The distance from the line of the edge, with its sign.
  double Height(const Point2& point) const { return Side(point) / Distance(left, right); }
};

// True if the two edges cross by more than the tolerance.
bool DoCross(const SweptEdge& a, const SweptEdge& b) {
  const auto separates = [](const SweptEdge& edge, const SweptEdge& other) {
    const double first = edge.Height(other.left);
    const double second = edge.Height(other.right);
    return std::min(first, second) < -kTouch && std::max(first, second) > kTouch;
  };
  return separates(a, b) && separates(b, a);
}

enum class Place { kInside, kOutside, kOnBoundary };

// Where a point lies. Linear in the size of the loop.
Place PlaceOf(const Point2& point, const Outline& loop) {
  bool isInside = false;
  for (std::size_t i = 0; i < loop.size(); ++i) {
    const Point2& a = loop[i];
    const Point2& b = loop[(i + 1) % loop.size()];
    const Vector2 edge = b - a;
    const double along = std::clamp(Dot(point - a, edge) / Dot(edge, edge), 0.0, 1.0);
    if (Distance(a + edge * along, point) <= kTouch) return Place::kOnBoundary;
    if ((a.y > point.y) != (b.y > point.y) && (Cross(edge, point - a) > 0.0) == (edge.y > 0.0)) {
      isInside = !isInside;
    }
  }
  return isInside ? Place::kInside : Place::kOutside;
}

// Where a loop lies that does not cross the other one: by its first points, or middles of edges,
// that are not on the boundary.
Place PlaceOf(const Outline& inner, const Outline& loop) {
  constexpr std::size_t kMostTried = 32;
  const std::size_t count = std::min(inner.size(), kMostTried);
  for (const double along : {0.0, 0.5}) {
    for (std::size_t i = 0; i < count; ++i) {
      const Vector2 edge = inner[i + 1 < inner.size() ? i + 1 : 0] - inner[i];
      const Place place = PlaceOf(inner[i] + edge * along, loop);
      if (place != Place::kOnBoundary) return place;
    }
  }
  return Place::kOnBoundary;
}

class Edges {
 public:
  explicit Edges(const FlatRegion& region) : origin(region.outer.front()) {
    Add(region.outer, 0);
    for (std::size_t i = 0; i < region.holes.size(); ++i) {
      Add(region.holes[i], static_cast<std::uint32_t>(i + 1));
    }
  }

  std::vector<SweptEdge> all;

 private:
  void Add(const Outline& loop, std::uint32_t number) {
    for (std::size_t i = 0; i < loop.size(); ++i) {
      Point2 a = Local(loop[i]);
      Point2 b = Local(loop[(i + 1) % loop.size()]);
      const bool isForward = IsBefore(a, b);
      if (!isForward) std::swap(a, b);
      all.push_back({a, b, number, isForward});
    }
  }

  Point2 Local(const Point2& point) const { return {point.x - origin.x, point.y - origin.y}; }

  Point2 origin;
};

// True if two of the edges cross. Edges that lie beside each other are not compared.
bool HasCrossing(std::vector<SweptEdge> edges) {
  std::sort(edges.begin(), edges.end(),
            [](const SweptEdge& a, const SweptEdge& b) { return a.left.x < b.left.x; });
  for (std::size_t i = 0; i < edges.size(); ++i) {
    const SweptEdge& edge = edges[i];
    const auto [low, high] = std::minmax({edge.left.y, edge.right.y});
    for (std::size_t j = i + 1; j < edges.size() && edges[j].left.x <= edge.right.x; ++j) {
      const SweptEdge& other = edges[j];
      const bool isBeside = (other.left.y < low && other.right.y < low) ||
                            (other.left.y > high && other.right.y > high);
      if (!isBeside && DoCross(edge, other)) return true;
    }
  }
  return false;
}

bool IsSimplePairwise(const FlatRegion& region) {
  if (HasCrossing(Edges(region).all)) return false;
  for (std::size_t i = 0; i < region.holes.size(); ++i) {
    if (PlaceOf(region.holes[i], region.outer) != Place::kInside) return false;
    for (std::size_t j = 0; j < region.holes.size(); ++j) {
      if (i != j && PlaceOf(region.holes[i], region.holes[j]) != Place::kOutside) return false;
    }
  }
  return true;
}

// A vertical line that moves from left to right and knows the edges that it meets, from below to
// above. Edges that cross are neighbours on the line before they do.
class Sweep {
 public:
  explicit Sweep(const FlatRegion& aRegion)
      : region(aRegion), edges(aRegion), line(IsBelow{&edges.all}), places(edges.all.size()) {}

  bool Run() {
    std::vector<Event> events;
    events.reserve(2 * edges.all.size());
    for (std::size_t i = 0; i < edges.all.size(); ++i) {
      const auto number = static_cast<std::uint32_t>(i);
      events.push_back({edges.all[i].left, true, number});
      events.push_back({edges.all[i].right, false, number});
    }
    std::sort(events.begin(), events.end());
    std::vector<bool> isKnown(region.holes.size() + 1, false);
    for (const Event& event : events) {
      if (event.isStart) {
        if (!Insert(event.edge, isKnown)) return false;
      } else if (!Remove(event.edge)) {
        return false;
      }
    }
    return true;
  }

 private:
  struct Event {
    Point2 point;
    bool isStart = false;
    std::uint32_t edge = 0;

    bool operator<(const Event& other) const {
      if (IsBefore(point, other.point)) return true;
      if (IsBefore(other.point, point)) return false;
      return isStart != other.isStart ? !isStart : edge < other.edge;
    }
  };

  struct IsBelow {
    const std::vector<SweptEdge>* edges;

    bool operator()(std::uint32_t i, std::uint32_t j) const {
      const SweptEdge& a = (*edges)[i];
      const SweptEdge& b = (*edges)[j];
      if (i == j) return false;
      if (IsBefore(b.left, a.left)) {
        const double side = b.Side(a.left) != 0.0 ? b.Side(a.left) : b.Side(a.right);
        return side != 0.0 ? side < 0.0 : i < j;
      }
      const double side = a.Side(b.left) != 0.0 ? a.Side(b.left) : a.Side(b.right);
      return side != 0.0 ? side > 0.0 : i < j;
    }
  };

  bool Insert(std::uint32_t edge, std::vector<bool>& isKnown) {
    const auto place = line.insert(edge).first;
    places[edge] = place;
    const auto above = std::next(place);
    if (above != line.end() && DoCross(edges.all[edge], edges.all[*above])) return false;
    const bool isLowest = place == line.begin();
    if (!isLowest && DoCross(edges.all[edge], edges.all[*std::prev(place)])) return false;
    const std::uint32_t loop = edges.all[edge].loop;
    if (isKnown[loop]) return true;
    isKnown[loop] = true;
    if (loop == 0) return true;
    if (isLowest) return IsInsideDirectly(loop, 0);
    const SweptEdge& below = edges.all[*std::prev(place)];
    return below.isForward || IsInsideDirectly(loop, below.loop);
  }

  bool Remove(std::uint32_t edge) {
    const auto next = line.erase(places[edge]);
    if (next == line.end() || next == line.begin()) return true;
    return !DoCross(edges.all[*next], edges.all[*std::prev(next)]);
  }

  // Decides for a hole whose first point touches the loop below it. Each decision takes time in
  // proportion to that loop, so the number of them is limited.
  bool IsInsideDirectly(std::uint32_t loop, std::uint32_t below) {
    const Outline& hole = region.holes[loop - 1];
    const Outline& around = below == 0 ? region.outer : region.holes[below - 1];
    directWork += around.size();
    if (directWork > kMostDirectWork) return false;
    return PlaceOf(hole, around) == (below == 0 ? Place::kInside : Place::kOutside);
  }

  const FlatRegion& region;
  Edges edges;
  std::set<std::uint32_t, IsBelow> line;
  std::vector<std::set<std::uint32_t, IsBelow>::iterator> places;
  std::size_t directWork = 0;
};

}  // namespace

bool IsSimple(const FlatRegion& region) {
  std::size_t points = region.outer.size();
  for (const Outline& hole : region.holes) points += hole.size();
  if (region.outer.empty()) return false;
  return points <= kMostPairwise ? IsSimplePairwise(region) : Sweep(region).Run();
}

}  // namespace KelIFC::building
