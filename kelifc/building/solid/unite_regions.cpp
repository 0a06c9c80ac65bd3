#include "kelifc/building/solid/unite_regions.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include "kelifc/building/solid/loops.h"
#include "kelifc/building/solid/point_index.h"
#include "kelifc/building/solid/vector_math.h"

namespace KelIFC::building {

namespace {

// The time grows with the square of the number of points.
constexpr std::size_t kMostPoints = 400;
constexpr std::size_t kMostPieces = 1500;

/// The edges of all loops, cut where they touch or cross each other.
class EdgeSplitter {
 public:
  EdgeSplitter(const std::vector<FlatRegion>& regions, double aTolerance)
      : tolerance(aTolerance), index(aTolerance) {
    for (const FlatRegion& region : regions) {
      AddLoop(region.outer);
      for (const Outline& hole : region.holes) AddLoop(hole);
    }
  }

  /// The pieces of the edges, in the direction of the edges.
  std::vector<DirectedEdge> Split() {
    for (std::size_t i = 0; i < edges.size(); ++i) {
      for (std::size_t k = 0; k < i; ++k) {
        if (AreNear(edges[i], edges[k])) Cut(edges[i], edges[k]);
      }
    }
    std::vector<DirectedEdge> pieces;
    for (Edge& edge : edges) AddPieces(edge, pieces);
    return pieces;
  }

  std::vector<Point2> Points() const {
    std::vector<Point2> points;
    points.reserve(index.Points().size());
    for (const Point3& p : index.Points()) points.emplace_back(p.x, p.y);
    return points;
  }

 private:
  struct Edge {
    std::uint32_t from = 0;
    std::uint32_t to = 0;
    std::vector<std::uint32_t> attached;
  };

  Point2 At(std::uint32_t i) const { return {index.Points()[i].x, index.Points()[i].y}; }
  std::uint32_t Add(const Point2& p) { return index.Add({p.x, p.y, 0.0}); }

  void AddLoop(const Outline& loop) {
    std::vector<std::uint32_t> numbers;
    for (const Point2& p : loop) numbers.push_back(Add(p));
    for (std::size_t i = 0; i < numbers.size(); ++i) {
      const std::uint32_t to = numbers[(i + 1) % numbers.size()];
      if (numbers[i] != to) edges.push_back({numbers[i], to, {}});
    }
  }

  bool AreNear(const Edge& a, const Edge& b) const {
    const Point2 p = At(a.from);
    const Point2 q = At(a.to);
    const Point2 r = At(b.from);
    const Point2 s = At(b.to);
    return std::max(p.x, q.x) + tolerance >= std::min(r.x, s.x) &&
           std::max(r.x, s.x) + tolerance >= std::min(p.x, q.x) &&
           std::max(p.y, q.y) + tolerance >= std::min(r.y, s.y) &&
           std::max(r.y, s.y) + tolerance >= std::min(p.y, q.y);
  }

  /// Attaches a point to an edge if it lies on it. True if it is a point of the edge then.
  bool Attach(Edge& edge, std::uint32_t point) {
    if (point == edge.from || point == edge.to) return true;
    const Point2 a = At(edge.from);
    const Vector2 along = At(edge.to) - a;
    const Vector2 v = At(point) - a;
    const double part = Dot(v, along) / Dot(along, along);
    if (!(part > 0.0 && part < 1.0)) return false;
    if (!(std::abs(Cross(along, v)) <= tolerance * Length(along))) return false;
    edge.attached.push_back(point);
    return true;
  }

  void Cut(Edge& a, Edge& b) {
    bool touches = false;
    for (const std::uint32_t point : {b.from, b.to}) touches = Attach(a, point) || touches;
    for (const std::uint32_t point : {a.from, a.to}) touches = Attach(b, point) || touches;
    if (touches) return;
    const Point2 p = At(a.from);
    const Point2 r = At(b.from);
    const Vector2 u = At(a.to) - p;
    const Vector2 v = At(b.to) - r;
    const double turn = Cross(u, v);
    if (std::abs(turn) <= 1e-12 * Length(u) * Length(v)) return;
    const double partOfA = Cross(r - p, v) / turn;
    const double partOfB = Cross(r - p, u) / turn;
    if (!(partOfA > 0.0 && partOfA < 1.0 && partOfB > 0.0 && partOfB < 1.0)) return;
    const std::uint32_t crossing = Add(Between(p, At(a.to), partOfA));
    if (crossing != a.from && crossing != a.to) a.attached.push_back(crossing);
    if (crossing != b.from && crossing != b.to) b.attached.push_back(crossing);
  }

  void AddPieces(Edge& edge, std::vector<DirectedEdge>& pieces) const {
    const Point2 a = At(edge.from);
    const Vector2 along = At(edge.to) - a;
    std::sort(edge.attached.begin(), edge.attached.end(), [&](std::uint32_t p, std::uint32_t q) {
      return Dot(At(p) - a, along) < Dot(At(q) - a, along);
    });
    std::uint32_t last = edge.from;
    edge.attached.push_back(edge.to);
    for (const std::uint32_t point : edge.attached) {
      if (point != last) pieces.emplace_back(last, point);
      last = point;
    }
  }

  double tolerance;
  PointIndex index;
  std::vector<Edge> edges;
};

/// An edge that is run along `balance` times more often than against.
struct Piece {
  DirectedEdge ends;  // first < second
  int balance = 0;
};

std::vector<Piece> Balanced(const std::vector<DirectedEdge>& edges) {
  std::vector<Piece> pieces;
  pieces.reserve(edges.size());
  for (const auto& [from, to] : edges) {
    pieces.push_back({{std::min(from, to), std::max(from, to)}, from < to ? 1 : -1});
  }
  std::sort(pieces.begin(), pieces.end(),
            [](const Piece& a, const Piece& b) { return a.ends < b.ends; });
  std::vector<Piece> sums;
  for (const Piece& piece : pieces) {
    if (!sums.empty() && sums.back().ends == piece.ends) {
      sums.back().balance += piece.balance;
    } else {
      sums.push_back(piece);
    }
  }
  std::erase_if(sums, [](const Piece& piece) { return piece.balance == 0; });
  return sums;
}

Point2 Turned(const Point2& p) { return {p.y, -p.x}; }

/// How often the pieces other than one wind around the middle of that one.
class Winding {
 public:
  Winding(const std::vector<Point2>& somePoints, const std::vector<Piece>& somePieces)
      : pieces(somePieces), points(somePoints) {
    turned.reserve(points.size());
    for (const Point2& p : points) turned.push_back(Turned(p));
  }

  /// The winding number on the left of a piece.
  int LeftOf(std::size_t piece) const {
    const auto& [a, b] = pieces[piece].ends;
    const Vector2 along = points[b] - points[a];
    // The ray crosses the piece as steeply as possible.
    const std::vector<Point2>& own = std::abs(along.y) >= std::abs(along.x) ? points : turned;
    const Point2 middle = Between(own[a], own[b], 0.5);
    int sum = 0;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
      if (i != piece)
        sum += Crossing(middle, own[pieces[i].ends.first], own[pieces[i].ends.second],
                        pieces[i].balance);
    }
    // The ray from the left of a piece that rises crosses it.
    return own[b].y > own[a].y ? sum + pieces[piece].balance : sum;
  }

 private:
  /// What a piece adds to the winding number: upwards to the right of the point it turns around it.
  static int Crossing(const Point2& p, const Point2& a, const Point2& b, int balance) {
    if ((a.y <= p.y) == (b.y <= p.y)) return 0;
    const double side = Turn(a, b, p);
    if (b.y > a.y) return side > 0.0 ? balance : 0;
    return side < 0.0 ? -balance : 0;
  }

  const std::vector<Piece>& pieces;
  const std::vector<Point2>& points;
  std::vector<Point2> turned;
};

/// The pieces with the union on one side only, such that it is on their left.
std::vector<DirectedEdge> BoundaryOf(const std::vector<Point2>& points,
                                     const std::vector<Piece>& pieces) {
  const Winding winding(points, pieces);
  std::vector<DirectedEdge> boundary;
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    const int left = winding.LeftOf(i);
    const int right = left - pieces[i].balance;
    if ((left > 0) == (right > 0)) continue;
    const auto& [a, b] = pieces[i].ends;
    boundary.push_back(left > 0 ? DirectedEdge(a, b) : DirectedEdge(b, a));
  }
  return boundary;
}

}  // namespace

std::vector<FlatRegion> UniteRegions(std::vector<FlatRegion> regions, double tolerance) {
  std::size_t count = 0;
  for (const FlatRegion& region : regions) {
    count += region.outer.size();
    for (const Outline& hole : region.holes) count += hole.size();
  }
  if (regions.size() < 2 || count > kMostPoints) return regions;
  EdgeSplitter splitter(regions, tolerance);
  const std::vector<Piece> pieces = Balanced(splitter.Split());
  if (pieces.size() > kMostPieces) return regions;
  const std::vector<Point2> points = splitter.Points();
  const TracedLoops traced = TraceLoops(points, BoundaryOf(points, pieces));
  if (!traced.isComplete) return regions;
  bool isComplete = true;
  std::vector<FlatRegion> united = RegionsOfLoops(points, traced.loops, tolerance, isComplete);
  return isComplete && !united.empty() ? united : regions;
}

}  // namespace KelIFC::building
