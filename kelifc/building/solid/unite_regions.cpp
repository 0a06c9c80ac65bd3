#include "kelifc/building/solid/unite_regions.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <utility>

#include "kelifc/building/solid/box_tree.h"
#include "kelifc/building/solid/loops.h"
#include "kelifc/building/solid/point_index.h"
#include "kelifc/building/solid/vector_math.h"

namespace KelIFC::building {

namespace {

// Regions with more points stay as they are, and so do those whose edges cross more often.
constexpr std::size_t kMostPoints = 4000;
constexpr std::size_t kMostPieces = 8000;

// The most pairs of edges that are compared. Only edges that overlap in a direction are, so that
// outlines need few; edges that are made to overlap need the square of their number.
constexpr std::size_t kMostPairs = 500'000;

BuildingBox BoxOf(const Point2& a, const Point2& b) {
  BuildingBox box;
  Extend(box, Point3(a.x, a.y, 0.0));
  Extend(box, Point3(b.x, b.y, 0.0));
  return box;
}

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

  /// The pieces of the edges, in the direction of the edges; none if there are too many.
  std::vector<DirectedEdge> Split() {
    if (!CutAll()) return {};
    std::vector<DirectedEdge> pieces;
    for (Edge& edge : edges) AddPieces(edge, pieces);
    if (pieces.size() > kMostPieces) return {};
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

  /// Cuts the edges where they meet. False if they meet too often.
  bool CutAll() {
    std::vector<BuildingBox> boxes;
    boxes.reserve(edges.size());
    for (const Edge& edge : edges) boxes.push_back(BoxOf(At(edge.from), At(edge.to)));
    const BoxTree tree(boxes);
    std::size_t pairs = 0;
    std::vector<std::uint32_t> near;
    for (std::uint32_t i = 0; i < edges.size(); ++i) {
      near.clear();
      tree.ForEachNear(boxes[i], tolerance, [&](std::uint32_t k) {
        if (k < i) near.push_back(k);
      });
      pairs += near.size();
      if (pairs > kMostPairs || index.Points().size() > kMostPieces) return false;
      std::sort(near.begin(), near.end());
      for (const std::uint32_t k : near) Cut(edges[i], edges[k]);
    }
    return true;
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

/// Pieces, and which of them a ray to the right can cross.
class Rays {
 public:
  Rays(std::vector<Point2> somePoints, const std::vector<Piece>& somePieces)
      : points(std::move(somePoints)), pieces(somePieces) {
    std::vector<BuildingBox> boxes;
    boxes.reserve(pieces.size());
    for (const Piece& piece : pieces) {
      boxes.push_back(BoxOf(points[piece.ends.first], points[piece.ends.second]));
    }
    tree = BoxTree(boxes);
  }

  /// The winding number of the pieces on the left of one of them. `visits` counts the others that
  /// are looked at.
  int LeftOf(std::size_t own, std::size_t& visits) const {
    const Point2& a = points[pieces[own].ends.first];
    const Point2& b = points[pieces[own].ends.second];
    const Point2 middle = Between(a, b, 0.5);
    // A ray from the left of a piece that rises crosses it.
    int sum = b.y > a.y ? pieces[own].balance : 0;
    constexpr double kNever = std::numeric_limits<double>::infinity();
    tree.Search(
        [&](const BuildingBox& box) {
          const bool isBeside =
              box.min.y > middle.y || box.max.y < middle.y || box.max.x < middle.x;
          return isBeside ? kNever : 0.0;
        },
        [&](std::uint32_t i) {
          ++visits;
          if (i != own) sum += Crossing(middle, pieces[i]);
          return kNever;
        });
    return sum;
  }

 private:
  /// What a piece adds to the winding number: upwards to the right of the point it turns around it.
  int Crossing(const Point2& p, const Piece& piece) const {
    const Point2& a = points[piece.ends.first];
    const Point2& b = points[piece.ends.second];
    if ((a.y <= p.y) == (b.y <= p.y)) return 0;
    const double side = Turn(a, b, p);
    if (b.y > a.y) return side > 0.0 ? piece.balance : 0;
    return side < 0.0 ? -piece.balance : 0;
  }

  std::vector<Point2> points;
  const std::vector<Piece>& pieces;
  BoxTree tree;
};

std::vector<Point2> Turned(const std::vector<Point2>& points) {
  std::vector<Point2> turned;
  turned.reserve(points.size());
  for (const Point2& p : points) turned.emplace_back(p.y, -p.x);
  return turned;
}

/// The pieces with the union on one side only, such that it is on their left. None if that takes
/// too many comparisons.
std::vector<DirectedEdge> BoundaryOf(const std::vector<Point2>& points,
                                     const std::vector<Piece>& pieces) {
  const Rays level(points, pieces);
  const Rays upright(Turned(points), pieces);
  std::size_t visits = 0;
  std::vector<DirectedEdge> boundary;
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    const auto& [a, b] = pieces[i].ends;
    // The ray crosses the piece as steeply as possible.
    const Vector2 along = points[b] - points[a];
    const bool isUpright = std::abs(along.y) < std::abs(along.x);
    const int left = (isUpright ? upright : level).LeftOf(i, visits);
    if (visits > kMostPairs) return {};
    const int right = left - pieces[i].balance;
    if ((left > 0) == (right > 0)) continue;
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
  const std::vector<Point2> points = splitter.Points();
  const TracedLoops traced = TraceLoops(points, BoundaryOf(points, pieces));
  if (!traced.isComplete) return regions;
  bool isComplete = true;
  std::vector<FlatRegion> united = RegionsOfLoops(points, traced.loops, tolerance, isComplete);
  return isComplete && !united.empty() ? united : regions;
}

}  // namespace KelIFC::building
