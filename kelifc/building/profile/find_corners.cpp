#include "kelifc/building/profile/find_corners.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>
#include <utility>

#include "kelifc/building/profile/plane_arc.h"

namespace KelIFC::building {

namespace {

constexpr double kDegree = std::numbers::pi / 180.0;
constexpr double kStraight = 0.1 * kDegree;      // a turn that may be left out ...
constexpr double kStraightHeight = 5e-5;         // ... if it is this flat, in metres
constexpr double kLargestTurn = 50.0 * kDegree;  // between two chords of an arc
constexpr double kCurvatureRatio = 1.35;         // of neighbouring points of an arc
constexpr double kOneCorner = 135.0 * kDegree;   // arcs beyond it become two corners
constexpr double kTwoCorners = 200.0 * kDegree;  // arcs beyond it are none
constexpr double kRadiusTolerance = 0.1;         // of points of an arc, as part of the radius
constexpr double kTangentTolerance = 1.5 * kDegree;

double TurnAt(const Point2& previous, const Point2& here, const Point2& next) {
  const Vector2 before = here - previous;
  const Vector2 after = next - here;
  return std::atan2(Cross(before, after), Dot(before, after));
}

// Leaves out points at which the line hardly turns.
Outline WithoutFlatPoints(const Outline& loop) {
  Outline kept;
  const std::size_t count = loop.size();
  for (std::size_t i = 0; i < count; ++i) {
    const Point2& previous = kept.empty() ? loop[(i + count - 1) % count] : kept.back();
    const Point2& next = loop[(i + 1) % count];
    const double turn = TurnAt(previous, loop[i], next);
    const double height =
        std::abs(Cross(loop[i] - previous, next - previous)) / Distance(previous, next);
    if (!(std::abs(turn) < kStraight && height < kStraightHeight)) kept.push_back(loop[i]);
  }
  return kept;
}

// An arc made of chords, from point `first` to point `last` (which may be beyond the end).
struct ChordArc {
  std::size_t first = 0;
  std::size_t last = 0;
  PlaneArc arc;
};

class CornerFinder {
 public:
  explicit CornerFinder(const Outline& loop) : points(loop), size(loop.size()) {
    for (std::size_t i = 0; i < size; ++i) {
      const double turn = TurnAt(At(i + size - 1), At(i), At(i + 1));
      turns.push_back(turn);
      curvatures.push_back(2.0 * std::sin(turn) / Distance(At(i + size - 1), At(i + 1)));
    }
  }

  std::vector<RoundedCorner> Find(std::size_t limit) {
    FindArcs();
    std::vector<RoundedCorner> corners;
    if (arcs.empty()) {
      if (size > limit) return {};
      for (const Point2& point : points) corners.push_back({point, 0.0});
      return corners;
    }
    for (std::size_t i = 0; i < arcs.size(); ++i) {
      AddCorners(arcs[i], corners);
      const std::size_t next = i + 1 < arcs.size() ? arcs[i + 1].first : arcs.front().first + size;
      for (std::size_t point = arcs[i].last + 1; point < next; ++point) {
        if (corners.size() > limit) return {};
        corners.push_back({At(point), 0.0});
      }
      if (corners.size() > limit) return {};
    }
    return corners;
  }

 private:
  const Point2& At(std::size_t i) const { return points[i % size]; }

  bool IsCurved(std::size_t i) const {
    const double turn = std::abs(turns[i % size]);
    return turn > kStraight && turn <= kLargestTurn;
  }

  // True if both points can be inside of one arc.
  bool DoJoin(std::size_t i) const {
    const double ratio = curvatures[i % size] / curvatures[(i + 1) % size];
    return IsCurved(i) && IsCurved(i + 1) && ratio < kCurvatureRatio &&
           ratio > 1.0 / kCurvatureRatio;
  }

  // Arcs of many chords come first, so that the end of one is not taken for the middle of another.
  void FindArcs() {
    std::size_t start = 0;
    while (start < size && DoJoin(start + size - 1)) ++start;
    if (start == size) return;  // one circle
    std::vector<std::pair<std::size_t, std::size_t>> runs;
    for (std::size_t i = start; i < start + size; ++i) {
      if (!IsCurved(i)) continue;
      std::size_t end = i;
      while (end + 1 < start + size && DoJoin(end)) ++end;
      runs.emplace_back(i, end);
      i = end;
    }
    isUsed.assign(size, false);
    for (const bool isSingle : {false, true}) {
      for (const auto& [from, to] : runs) {
        if ((from == to) == isSingle) AddArc(from, to);
      }
    }
    std::sort(arcs.begin(), arcs.end(),
              [](const ChordArc& a, const ChordArc& b) { return a.first < b.first; });
  }

  // Adds the arc whose inner points are given, if it is one and none of its chords is used.
  void AddArc(std::size_t from, std::size_t to) {
    if (to - from + 2 >= size) return;
    const std::size_t first = from + size - 1;
    const std::size_t last = to + 1 + size;
    for (std::size_t edge = first; edge < last; ++edge) {
      if (isUsed[edge % size]) return;
    }
    const auto arc = ArcThrough(At(first), At(first + (last - first) / 2), At(last));
    if (!arc || std::abs(arc->sweep) > kTwoCorners) return;
    if (!IsOnCircle(*arc, first, last) || !IsTangent(*arc, first, last)) return;
    for (std::size_t edge = first; edge < last; ++edge) isUsed[edge % size] = true;
    arcs.push_back({first % size, first % size + (last - first), *arc});
  }

  bool IsOnCircle(const PlaneArc& arc, std::size_t first, std::size_t last) const {
    const double tolerance = std::min(kShapeTolerance, kRadiusTolerance * arc.radius);
    for (std::size_t i = first; i <= last; ++i) {
      if (std::abs(Distance(At(i), arc.centre) - arc.radius) > tolerance) return false;
    }
    return true;
  }

  // True if the edges before and after an arc are tangent to it.
  bool IsTangent(const PlaneArc& arc, std::size_t first, std::size_t last) const {
    const double chord = std::abs(arc.sweep) / static_cast<double>(last - first);
    const double tolerance = 0.25 * chord + kTangentTolerance;
    const Vector2 before = At(first) - At(first + size - 1);
    const Vector2 after = At(last + 1) - At(last);
    const auto differs = [&](const Vector2& edge, double angle) {
      const double side = arc.sweep > 0.0 ? 1.0 : -1.0;
      const Vector2 tangent(-side * std::sin(angle), side * std::cos(angle));
      return std::abs(std::atan2(Cross(edge, tangent), Dot(edge, tangent))) > tolerance;
    };
    return !differs(before, arc.start) && !differs(after, arc.start + arc.sweep);
  }

  // The corner of an arc is where the edges beside it meet.
  void AddCorners(const ChordArc& found, std::vector<RoundedCorner>& corners) const {
    const PlaneArc& arc = found.arc;
    const double sweep = std::abs(arc.sweep);
    if (sweep > kOneCorner) {
      const PlaneArc outside{arc.centre, arc.radius / std::cos(sweep / 4.0), arc.start, arc.sweep};
      corners.push_back({outside.At(0.25), arc.radius});
      corners.push_back({outside.At(0.75), arc.radius});
      return;
    }
    const Point2& start = At(found.first);
    const Point2& end = At(found.last);
    const Vector2 before = start - At(found.first + size - 1);
    const Vector2 after = At(found.last + 1) - end;
    const double cross = Cross(before, after);
    const double ahead = Cross(end - start, after) / cross;
    const Point2 corner = start + before * ahead;
    const double turn = std::abs(std::atan2(cross, Dot(before, after)));
    const double tangent = (Distance(corner, start) + Distance(corner, end)) / 2.0;
    corners.push_back({corner, tangent / std::tan(turn / 2.0)});
  }

  const Outline& points;
  std::size_t size;
  std::vector<double> turns;       // at each point, counter-clockwise
  std::vector<double> curvatures;  // of the circle through a point and its neighbours
  std::vector<bool> isUsed;        // edges that belong to an arc
  std::vector<ChordArc> arcs;
};

// The indices of the longest edges, rising. Of equal ones the first.
std::vector<std::size_t> LongestEdges(const Outline& points, std::size_t count) {
  std::vector<double> lengths;
  std::vector<std::size_t> edges;
  for (std::size_t i = 0; i < points.size(); ++i) {
    lengths.push_back(Distance(points[i], points[(i + 1) % points.size()]));
    edges.push_back(i);
    if (!std::isfinite(lengths.back())) return {};
  }
  std::nth_element(edges.begin(), edges.begin() + static_cast<std::ptrdiff_t>(count), edges.end(),
                   [&lengths](std::size_t a, std::size_t b) {
                     return lengths[a] != lengths[b] ? lengths[a] > lengths[b] : a < b;
                   });
  edges.resize(count);
  std::sort(edges.begin(), edges.end());
  return edges;
}

// The corner of two lines, the first of which ends where an arc begins and the second of which
// begins where it ends.
std::optional<RoundedCorner> CornerOf(const Point2& start, Vector2 before, const Point2& end,
                                      Vector2 after) {
  constexpr double kTangentDifference = 1e-3;  // in metres, and a tenth of the tangent
  Normalise(before);
  Normalise(after);
  const double sine = Cross(before, after);
  const double turn = std::abs(std::atan2(sine, Dot(before, after)));
  const double first = Cross(end - start, after) / sine;
  const Point2 corner = start + before * first;
  const double second = Dot(end - corner, after);
  const double tangent = (first + second) / 2.0;
  if (!(first > 0.0 && second > 0.0 && turn < kOneCorner)) return std::nullopt;
  if (!(std::abs(first - second) <= kTangentDifference + 0.1 * tangent)) return std::nullopt;
  return RoundedCorner{corner, tangent / std::tan(turn / 2.0)};
}

}  // namespace

std::vector<RoundedCorner> FindCornersBetween(const Outline& loop, std::size_t count) {
  const Outline points = WithoutFlatPoints(loop);
  const std::size_t size = points.size();
  if (size <= count || count < 3) return {};
  const std::vector<std::size_t> edges = LongestEdges(points, count);
  std::vector<RoundedCorner> corners;
  for (std::size_t i = 0; i < edges.size(); ++i) {
    const std::size_t edge = edges[i];
    const std::size_t next = edges[(i + 1) % edges.size()];
    const Point2& start = points[(edge + 1) % size];
    const std::size_t chords = (next + size - edge - 1) % size;
    if (chords == 0) {
      corners.push_back({start, 0.0});
      continue;
    }
    const auto corner = CornerOf(start, start - points[edge], points[next],
                                 points[(next + 1) % size] - points[next]);
    if (chords == 1 || !corner) return {};
    corners.push_back(*corner);
  }
  return corners;
}

std::vector<RoundedCorner> FindCorners(const Outline& loop, std::size_t limit) {
  const Outline points = WithoutFlatPoints(loop);
  if (points.size() < 3) return {};
  return CornerFinder(points).Find(limit);
}

}  // namespace KelIFC::building
