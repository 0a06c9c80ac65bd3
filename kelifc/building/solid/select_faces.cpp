#include "kelifc/building/solid/select_faces.h"

#include <algorithm>
#include <array>
#include <vector>

#include "kelifc/building/solid/triangulate.h"
#include "kelifc/building/solid/vector_math.h"

namespace KelIFC::building {

namespace {

/// Where a piece of a face lies in the other mesh. kSame and kOpposite: on a face of the other
/// mesh with the same or the opposite normal.
enum class Lies { kOutside, kInside, kSame, kOpposite };

/// A piece of a face.
struct Cell {
  std::vector<PointLoop> loops;  ///< the outer one first; numbers of the arrangement
  Point3 sample;                 ///< a point well inside
};

/// The pieces into which the other mesh cuts a face.
class FaceCells {
 public:
  FaceCells(const Arrangement& someArrangement, const Arrangement::Face& someFace)
      : arrangement(someArrangement), face(someFace) {
    std::vector<DirectedEdge> edges = face.boundary;
    for (const DirectedEdge& segment : face.segments) {
      edges.push_back(segment);
      edges.emplace_back(segment.second, segment.first);
    }
    Number(edges);
    for (std::vector<PointLoop>& loops : Trace(edges)) {
      Cell cell;
      if (!FindSample(loops, cell.sample)) continue;
      cell.loops = std::move(loops);
      cells.push_back(std::move(cell));
    }
  }

  const std::vector<Cell>& Cells() const { return cells; }

  /// Joins some of the cells to as few faces as possible.
  std::vector<std::vector<PointLoop>> Join(const std::vector<const Cell*>& some) const {
    std::vector<DirectedEdge> edges;
    for (const Cell* cell : some) {
      for (const PointLoop& loop : cell->loops) {
        for (std::size_t i = 0; i < loop.size(); ++i) {
          edges.emplace_back(loop[i], loop[(i + 1) % loop.size()]);
        }
      }
    }
    CancelOpposite(edges);
    return Trace(edges);
  }

 private:
  void Number(const std::vector<DirectedEdge>& edges) {
    for (const auto& [from, to] : edges) numbers.insert(numbers.end(), {from, to});
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    for (const std::uint32_t p : numbers) points.push_back(face.plane(arrangement.At(p)));
  }

  std::uint32_t NumberOf(std::uint32_t point) const {
    return static_cast<std::uint32_t>(std::lower_bound(numbers.begin(), numbers.end(), point) -
                                      numbers.begin());
  }

  std::vector<std::vector<PointLoop>> Trace(const std::vector<DirectedEdge>& edges) const {
    std::vector<DirectedEdge> numbered;
    numbered.reserve(edges.size());
    for (const auto& [from, to] : edges) numbered.emplace_back(NumberOf(from), NumberOf(to));
    const TracedLoops traced = TraceLoops(points, numbered);
    bool isComplete = true;
    std::vector<std::vector<PointLoop>> result;
    for (const NestedLoop& nested : NestLoops(points, traced.loops, isComplete)) {
      std::vector<PointLoop>& loops = result.emplace_back();
      loops.push_back(traced.loops[nested.outer]);
      for (const std::size_t hole : nested.holes) loops.push_back(traced.loops[hole]);
      for (PointLoop& loop : loops) {
        for (std::uint32_t& p : loop) p = numbers[p];
      }
    }
    return result;
  }

  /// The centre of the thickest triangle of a region; false if it has no area.
  bool FindSample(const std::vector<PointLoop>& loops, Point3& sample) const {
    std::vector<Point2> corners = points;
    std::vector<PointLoop> flat = loops;
    for (PointLoop& loop : flat) {
      for (std::uint32_t& p : loop) p = NumberOf(p);
    }
    double best = 0.0;
    for (const Triangle2& t : Triangulate(corners, flat)) {
      const Point2& a = corners[t[0]];
      const Point2& b = corners[t[1]];
      const Point2& c = corners[t[2]];
      const double thickness = Turn(a, b, c) / (Distance(a, b) + Distance(b, c) + Distance(c, a));
      if (!(thickness > best)) continue;
      best = thickness;
      const Point2 p = {(a.x + b.x + c.x) / 3.0, (a.y + b.y + c.y) / 3.0};
      sample = face.plane.origin + (face.plane.x * p.x + face.plane.y * p.y);
    }
    return best > 0.0;
  }

  const Arrangement& arrangement;
  const Arrangement::Face& face;
  std::vector<std::uint32_t> numbers;
  std::vector<Point2> points;
  std::vector<Cell> cells;
};

/// Chooses and joins the pieces of both meshes that bound the result.
class Selection {
 public:
  Selection(Arrangement& someArrangement, std::array<const SurfaceDistance*, 2> someMeshes,
            BooleanOperation someOperation)
      : arrangement(someArrangement), meshes(someMeshes), operation(someOperation) {}

  Mesh Result() {
    Mesh result;
    for (std::size_t i = 0; i < arrangement.PointCount(); ++i) {
      result.points.push_back(arrangement.At(static_cast<Mesh::Index>(i)));
    }
    for (const Arrangement::Face& face : arrangement.Faces()) AddPieces(face, result);
    return result;
  }

 private:
  void AddPieces(const Arrangement::Face& face, Mesh& result) {
    const FaceCells cells(arrangement, face);
    std::vector<const Cell*> kept;
    for (const Cell& cell : cells.Cells()) {
      if (IsKept(face.operand, PlaceOf(cell.sample, face))) kept.push_back(&cell);
    }
    if (kept.empty()) return;
    const bool isTurned = face.operand == 1 && operation == BooleanOperation::kDifference;
    for (std::vector<PointLoop>& loops : cells.Join(kept)) {
      result.BeginFace();
      for (PointLoop& loop : loops) {
        if (isTurned) std::reverse(loop.begin(), loop.end());
        result.AddLoop(loop);
      }
    }
  }

  Lies PlaceOf(const Point3& sample, const Arrangement::Face& face) {
    bool isSame = false;
    bool isOpposite = false;
    for (const std::size_t other : face.coplanar) {
      const Arrangement::Face& there = arrangement.Faces()[other];
      if (arrangement.PlaceOf(sample, there) == Arrangement::Place::kOutside) continue;
      (Dot(there.normal, face.normal) > 0.0 ? isSame : isOpposite) = true;
    }
    // Between two faces that touch, the other mesh goes on.
    if (isSame && isOpposite) return Lies::kInside;
    if (isSame || isOpposite) return isSame ? Lies::kSame : Lies::kOpposite;
    return meshes[1 - face.operand]->Contains(sample, 0.0) ? Lies::kInside : Lies::kOutside;
  }

  /// A piece that both meshes have is taken from the first one.
  bool IsKept(std::size_t operand, Lies place) const {
    const bool isFirst = operand == 0;
    switch (operation) {
      case BooleanOperation::kUnion:
        return place == Lies::kOutside || (isFirst && place == Lies::kSame);
      case BooleanOperation::kIntersection:
        return place == Lies::kInside || (isFirst && place == Lies::kSame);
      case BooleanOperation::kDifference:
        break;
    }
    if (!isFirst) return place == Lies::kInside;
    return place == Lies::kOutside || place == Lies::kOpposite;
  }

  Arrangement& arrangement;
  std::array<const SurfaceDistance*, 2> meshes;
  BooleanOperation operation;
};

}  // namespace

Mesh SelectFaces(Arrangement& arrangement, const SurfaceDistance& first,
                 const SurfaceDistance& second, BooleanOperation operation) {
  return Selection(arrangement, {&first, &second}, operation).Result();
}

}  // namespace KelIFC::building
