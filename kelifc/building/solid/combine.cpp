#include <algorithm>
#include <array>
#include <cmath>

#include "kelifc/building/solid/arrangement.h"
#include "kelifc/building/solid/body.h"
#include "kelifc/building/solid/boolean.h"
#include "kelifc/building/solid/distance.h"
#include "kelifc/building/solid/mesh_tools.h"
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

  std::vector<std::vector<PointLoop>> Trace(std::vector<DirectedEdge> edges) const {
    for (auto& [from, to] : edges) {
      from = NumberOf(from);
      to = NumberOf(to);
    }
    const TracedLoops traced = TraceLoops(points, edges);
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

/// Takes out points that lie on a straight line between the only two points that they are joined
/// to.
Mesh WithoutStraightPoints(const Mesh& mesh, double tolerance) {
  constexpr Mesh::Index kNone = 0xFFFFFFFF;
  constexpr Mesh::Index kMany = 0xFFFFFFFE;
  std::vector<std::array<Mesh::Index, 2>> joined(mesh.points.size(), {kNone, kNone});
  const auto join = [&](Mesh::Index point, Mesh::Index other) {
    auto& [a, b] = joined[point];
    if (a == other || b == other || a == kMany) return;
    if (a == kNone) {
      a = other;
    } else if (b == kNone) {
      b = other;
    } else {
      a = kMany;
    }
  };
  for (const EdgeUse& edge : SortedEdgesOf(mesh)) {
    join(edge.from, edge.to);
    join(edge.to, edge.from);
  }
  const auto isStraight = [&](Mesh::Index point) {
    const auto [a, b] = joined[point];
    if (a >= kMany || b >= kMany) return false;
    const Vector3 u = mesh.points[point] - mesh.points[a];
    const Vector3 v = mesh.points[b] - mesh.points[point];
    const double length = Length(u + v);
    return Dot(u, v) > 0.0 && Length(Cross(u, v)) <= tolerance * length;
  };
  Mesh result;
  result.points = mesh.points;
  std::vector<Mesh::Index> loop;
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    for (std::size_t i = 0; i < mesh.LoopCount(face); ++i) {
      loop.clear();
      for (const Mesh::Index p : mesh.LoopOf(face, i)) {
        if (!isStraight(p)) loop.push_back(p);
      }
      if (loop.size() < 3 && i == 0) break;
      if (i == 0) result.BeginFace();
      if (loop.size() > 2) result.AddLoop(loop);
    }
  }
  return result;
}

bool IsPlausible(double first, double second, double result, BooleanOperation operation) {
  const double slack = 1e-5 * (std::abs(first) + std::abs(second)) + 1e-9;
  switch (operation) {
    case BooleanOperation::kUnion:
      return result >= std::max(first, second) - slack && result <= first + second + slack;
    case BooleanOperation::kIntersection:
      return result >= -slack && result <= std::min(first, second) + slack;
    case BooleanOperation::kDifference:
      break;
  }
  return result >= std::max(0.0, first - second) - slack && result <= first + slack;
}

bool TryCombine(const Mesh& first, const Mesh& second, BooleanOperation operation, double tolerance,
                Mesh& result) {
  const Point3 origin = CentreOf(BoxOf(first));
  Arrangement arrangement(first, second, origin, tolerance);
  if (!arrangement.Build()) return false;
  Transform3 toLocal;
  toLocal.origin = ToPoint(-ToVector(origin));
  const Mesh localFirst = Moved(first, toLocal);
  const Mesh localSecond = Moved(second, toLocal);
  const SurfaceDistance inFirst(localFirst);
  const SurfaceDistance inSecond(localSecond);
  Selection selection(arrangement, {&inFirst, &inSecond}, operation);
  Mesh mesh = selection.Result();
  if (!IsBalanced(mesh)) return false;
  Mesh smooth = WithoutStraightPoints(mesh, tolerance);
  if (IsBalanced(smooth)) mesh = std::move(smooth);
  if (!IsPlausible(VolumeOf(first), VolumeOf(second), VolumeOf(mesh), operation)) return false;
  for (Point3& p : mesh.points) p += ToVector(origin);
  result = Weld(mesh, tolerance / 100.0);
  return true;
}

/// The result for meshes that do not come near each other.
Mesh CombineApart(const Mesh& first, const Mesh& second, BooleanOperation operation) {
  if (operation == BooleanOperation::kIntersection) return Mesh();
  Mesh result = first;
  if (operation == BooleanOperation::kUnion) Append(result, second);
  return result;
}

}  // namespace

bool Combine(const Mesh& first, const Mesh& second, BooleanOperation operation, Mesh& result) {
  for (const Mesh* mesh : {&first, &second}) {
    for (const Point3& p : mesh->points) {
      if (!IsUsable(p)) return false;
    }
  }
  if (first.IsEmpty() || second.IsEmpty() || !AreNear(BoxOf(first), BoxOf(second), 1e-5)) {
    result = CombineApart(first, second, operation);
    return true;
  }
  // Cutters are flush with faces within the digits that a file has, mostly. Where one tolerance
  // leaves gaps, another one may not.
  for (const double tolerance : {1e-6, 1e-5, 1e-7, 5e-5}) {
    if (TryCombine(first, second, operation, tolerance, result)) return true;
  }
  return false;
}

}  // namespace KelIFC::building
