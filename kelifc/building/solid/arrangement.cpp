#include "kelifc/building/solid/arrangement.h"

#include <algorithm>
#include <cmath>

#include "kelifc/building/solid/mesh_tools.h"
#include "kelifc/building/solid/triangulate.h"

namespace KelIFC::building {

namespace {

BuildingBox BoxAround(const Point3& a, const Point3& b) {
  BuildingBox box;
  Extend(box, a);
  Extend(box, b);
  return box;
}

/// Where the nearest point of a segment lies, as a fraction.
double FractionOf(const Point3& p, const Point3& a, const Point3& b) {
  const Vector3 edge = b - a;
  const double square = Dot(edge, edge);
  return square > 0.0 ? std::clamp(Dot(p - a, edge) / square, 0.0, 1.0) : 0.0;
}

double DistanceTo(const Point3& p, const Point3& a, const Point3& b) {
  return Length(p - Between(a, b, FractionOf(p, a, b)));
}

DirectedEdge Ordered(std::uint32_t a, std::uint32_t b) { return {std::min(a, b), std::max(a, b)}; }

template <typename T>
void SortUnique(std::vector<T>& values) {
  std::sort(values.begin(), values.end());
  values.erase(std::unique(values.begin(), values.end()), values.end());
}

/// A loop without repeated points.
PointLoop Renumber(const Mesh::Loop& loop, const std::vector<Mesh::Index>& numbers) {
  PointLoop result;
  for (const Mesh::Index p : loop) {
    if (result.empty() || result.back() != numbers[p]) result.push_back(numbers[p]);
  }
  while (result.size() > 1 && result.front() == result.back()) result.pop_back();
  if (result.size() < 3) result.clear();
  return result;
}

}  // namespace

Arrangement::Arrangement(const Mesh& first, const Mesh& second, const Point3& origin,
                         double someTolerance)
    : tolerance(someTolerance), index(someTolerance, first.points.size() + second.points.size()) {
  AddMesh(first, origin, 0);
  AddMesh(second, origin, 1);
  CollectEdges();
}

void Arrangement::AddMesh(const Mesh& mesh, const Point3& origin, std::size_t operand) {
  std::vector<Index> numbers;
  for (const Point3& p : mesh.points) numbers.push_back(index.Add(ToPoint(p - origin)));
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    std::vector<PointLoop> loops;
    for (std::size_t i = 0; i < mesh.LoopCount(face); ++i) {
      PointLoop loop = Renumber(mesh.LoopOf(face, i), numbers);
      if (loop.empty() && i == 0) break;
      if (!loop.empty()) loops.push_back(std::move(loop));
    }
    if (!loops.empty()) AddFace(std::move(loops), operand);
  }
}

void Arrangement::AddFace(std::vector<PointLoop> loops, std::size_t operand) {
  Vector3 area;
  BuildingBox box;
  const Point3& origin = At(loops[0][0]);
  for (const PointLoop& loop : loops) {
    for (std::size_t i = 0; i < loop.size(); ++i) {
      Extend(box, At(loop[i]));
      const Index to = loop[(i + 1) % loop.size()];
      area = area + Cross(At(loop[i]) - origin, At(to) - origin);
    }
  }
  const double size = SizeOf(box);
  // Without an area there is no plane. The neighbours of such a face meet in its edges.
  if (!(Length(area) > 1e-3 * tolerance * size)) return;
  Face face{operand,
            std::move(loops),
            {},
            Unit(area),
            Projection(CentreOf(box), Unit(area)),
            box,
            {},
            {},
            {},
            {},
            {}};
  Vector3 sum;
  std::size_t count = 0;
  for (const PointLoop& loop : face.loops) {
    for (const Index p : loop) sum = sum + (At(p) - face.plane.origin);
    count += loop.size();
  }
  face.plane.origin += sum / static_cast<double>(count);
  const bool isTriangle = face.loops.size() == 1 && face.loops[0].size() == 3;
  if (!isTriangle && DeviationOf(face) > 0.5 * tolerance) {
    AddTriangles(face);
  } else {
    faces.push_back(std::move(face));
  }
}

/// The largest distance of a point of a face from its plane.
double Arrangement::DeviationOf(const Face& face) const {
  double deviation = 0.0;
  for (const PointLoop& loop : face.loops) {
    for (const Index p : loop) deviation = std::max(deviation, std::abs(HeightOf(At(p), face)));
  }
  return deviation;
}

void Arrangement::AddTriangles(const Face& face) {
  std::vector<Point2> points;
  std::vector<Index> numbers;
  std::vector<PointLoop> flat;
  for (const PointLoop& loop : face.loops) {
    PointLoop& result = flat.emplace_back();
    for (const Index p : loop) {
      result.push_back(static_cast<std::uint32_t>(points.size()));
      points.push_back(face.plane(At(p)));
      numbers.push_back(p);
    }
  }
  const std::vector<Triangle2> triangles = Triangulate(points, flat);
  for (std::size_t i = numbers.size(); i < points.size(); ++i) {
    const Vector3 v = face.plane.x * points[i].x + face.plane.y * points[i].y;
    numbers.push_back(index.Add(face.plane.origin + v));
  }
  for (const Triangle2& t : triangles) {
    const PointLoop loop = {numbers[t[0]], numbers[t[1]], numbers[t[2]]};
    if (loop[0] != loop[1] && loop[1] != loop[2] && loop[2] != loop[0]) {
      AddFace({loop}, face.operand);
    }
  }
}

void Arrangement::CollectEdges() {
  std::vector<std::pair<DirectedEdge, std::size_t>> uses;
  const auto forEach = [&](auto use) {
    for (Face& face : faces) {
      for (const PointLoop& loop : face.loops) {
        for (std::size_t i = 0; i < loop.size(); ++i) {
          use(face, Ordered(loop[i], loop[(i + 1) % loop.size()]));
        }
      }
    }
  };
  forEach([&](Face& face, const DirectedEdge& ends) { uses.emplace_back(ends, face.operand); });
  std::sort(uses.begin(), uses.end());
  for (const auto& [ends, operand] : uses) {
    if (edges.empty() || edges.back().a != ends.first || edges.back().b != ends.second) {
      edges.push_back({ends.first, ends.second, {false, false}, {}});
    }
    edges.back().isOf[operand] = true;
  }
  forEach([&](Face& face, const DirectedEdge& ends) {
    face.edges.push_back(EdgeOf(ends.first, ends.second));
  });
  for (auto& flags : isOf) flags.assign(PointCount(), false);
  for (const Face& face : faces) {
    for (const PointLoop& loop : face.loops) {
      for (const Index p : loop) isOf[face.operand][p] = true;
    }
  }
}

std::size_t Arrangement::EdgeOf(Index a, Index b) const {
  const auto entry = std::lower_bound(edges.begin(), edges.end(), Ordered(a, b),
                                      [](const Edge& edge, const DirectedEdge& ends) {
                                        return DirectedEdge(edge.a, edge.b) < ends;
                                      });
  return static_cast<std::size_t>(entry - edges.begin());
}

void Arrangement::Attach(Edge& edge, Index point) {
  if (point != edge.a && point != edge.b) edge.attached.push_back(point);
}

bool Arrangement::Build() {
  mostWork = std::min<std::size_t>(1'000'000 + 3000 * edges.size(), 400'000'000);
  std::vector<BuildingBox> boxes;
  for (const Edge& edge : edges) boxes.push_back(BoxAround(At(edge.a), At(edge.b)));
  edgeTree = BoxTree(boxes);
  boxes.clear();
  for (const Face& face : faces) boxes.push_back(face.box);
  faceTree = BoxTree(boxes);
  AttachVerticesToEdges();
  CrossEdges();
  CrossFaces();
  AttachVerticesToFaces();
  if (!Work(0)) return false;
  SplitBoundaries();
  CrossPlanes();
  return Work(0);
}

/// Also within one mesh: what lies on an edge without splitting it would leave a gap.
void Arrangement::AttachVerticesToEdges() {
  for (Index p = 0; p < isOf[0].size(); ++p) {
    if (!isOf[0][p] && !isOf[1][p]) continue;
    edgeTree.ForEachNear(BoxAround(At(p), At(p)), tolerance, [&](std::uint32_t item) {
      Edge& edge = edges[item];
      if (p == edge.a || p == edge.b || !Work(1)) return;
      if (DistanceTo(At(p), At(edge.a), At(edge.b)) <= tolerance) Attach(edge, p);
    });
  }
}

void Arrangement::CrossEdges() {
  for (std::size_t i = 0; i < edges.size(); ++i) {
    const BuildingBox box = BoxAround(At(edges[i].a), At(edges[i].b));
    edgeTree.ForEachNear(box, tolerance, [&](std::uint32_t other) {
      if (other <= i || !Work(1)) return;
      Edge& a = edges[i];
      Edge& b = edges[other];
      if ((a.isOf[0] && b.isOf[1]) || (a.isOf[1] && b.isOf[0])) CrossEdge(a, b);
    });
  }
}

/// Attaches the point in which two edges cross, if they do between their ends.
void Arrangement::CrossEdge(Edge& first, Edge& second) {
  if (first.a == second.a || first.a == second.b || first.b == second.a || first.b == second.b) {
    return;
  }
  const Vector3 u = At(first.b) - At(first.a);
  const Vector3 v = At(second.b) - At(second.a);
  const Vector3 w = At(second.a) - At(first.a);
  const Vector3 normal = Cross(u, v);
  const double square = Dot(normal, normal);
  // Of edges that are almost parallel only the ends meet the other edge.
  if (!(square > 1e-12 * Dot(u, u) * Dot(v, v))) return;
  const double s = Dot(Cross(w, v), normal) / square;
  const double t = Dot(Cross(w, u), normal) / square;
  if (!(s > 0.0 && s < 1.0 && t > 0.0 && t < 1.0)) return;
  const Point3 p = Between(At(first.a), At(first.b), s);
  const Point3 q = Between(At(second.a), At(second.b), t);
  if (Length(q - p) > tolerance) return;
  const Index point = index.Add(Between(p, q, 0.5));
  Attach(first, point);
  Attach(second, point);
}

void Arrangement::CrossFaces() {
  for (Edge& edge : edges) {
    const BuildingBox box = BoxAround(At(edge.a), At(edge.b));
    faceTree.ForEachNear(box, tolerance, [&](std::uint32_t item) {
      Face& face = faces[item];
      if (edge.isOf[1 - face.operand] && Work(1)) CrossFace(edge, face);
    });
  }
}

void Arrangement::CrossFace(Edge& edge, Face& face) {
  const double a = HeightOf(At(edge.a), face);
  const double b = HeightOf(At(edge.b), face);
  // An end in the plane is attached to the face as a vertex.
  if (std::abs(a) <= tolerance || std::abs(b) <= tolerance || (a > 0.0) == (b > 0.0)) return;
  const Point3 place = Between(At(edge.a), At(edge.b), a / (a - b));
  const Place where = PlaceOf(place, face);
  if (where == Place::kOutside) return;
  const Index point = index.Add(place);
  Attach(edge, point);
  if (where == Place::kInside) {
    face.inside.push_back(point);
    return;
  }
  for (const std::size_t other : face.edges) {
    if (DistanceTo(place, At(edges[other].a), At(edges[other].b)) <= tolerance) {
      Attach(edges[other], point);
    }
  }
}

void Arrangement::AttachVerticesToFaces() {
  for (Index p = 0; p < isOf[0].size(); ++p) {
    if (!isOf[0][p] && !isOf[1][p]) continue;
    faceTree.ForEachNear(BoxAround(At(p), At(p)), tolerance, [&](std::uint32_t item) {
      Face& face = faces[item];
      if (!isOf[1 - face.operand][p] || !Work(1)) return;
      if (std::abs(HeightOf(At(p), face)) > tolerance) return;
      if (PlaceOf(At(p), face) == Place::kInside) face.inside.push_back(p);
    });
  }
}

Arrangement::Place Arrangement::PlaceOf(const Point3& point, const Face& face) {
  const Point2 p = face.plane(point);
  bool isInside = false;
  for (const std::size_t number : face.edges) {
    Work(1);
    const Point2 a = face.plane(At(edges[number].a));
    const Point2 b = face.plane(At(edges[number].b));
    const Vector2 edge = b - a;
    const double square = Dot(edge, edge);
    const double part = square > 0.0 ? std::clamp(Dot(p - a, edge) / square, 0.0, 1.0) : 0.0;
    if (Distance(p, a + edge * part) <= tolerance) return Place::kOn;
    if ((a.y <= p.y) == (b.y <= p.y)) continue;
    if (a.x + edge.x * ((p.y - a.y) / edge.y) > p.x) isInside = !isInside;
  }
  return isInside ? Place::kInside : Place::kOutside;
}

void Arrangement::SplitBoundaries() {
  for (Edge& edge : edges) {
    SortUnique(edge.attached);
    std::sort(edge.attached.begin(), edge.attached.end(), [&](Index p, Index q) {
      const double left = FractionOf(At(p), At(edge.a), At(edge.b));
      const double right = FractionOf(At(q), At(edge.a), At(edge.b));
      return left < right || (left == right && p < q);
    });
  }
  for (Face& face : faces) SplitBoundary(face);
}

void Arrangement::SplitBoundary(Face& face) {
  std::size_t number = 0;
  PointLoop points;
  for (const PointLoop& loop : face.loops) {
    for (const Index from : loop) {
      const Edge& edge = edges[face.edges[number++]];
      points = {edge.a};
      points.insert(points.end(), edge.attached.begin(), edge.attached.end());
      points.push_back(edge.b);
      if (from != edge.a) std::reverse(points.begin(), points.end());
      for (std::size_t k = 0; k + 1 < points.size(); ++k) {
        face.boundary.emplace_back(points[k], points[k + 1]);
      }
    }
  }
  // A spike, which rounding makes of two edges that are almost one, is no boundary.
  CancelOpposite(face.boundary);
  SortUnique(face.inside);
  face.on = face.inside;
  for (const auto& [from, to] : face.boundary) face.on.push_back(from);
  SortUnique(face.on);
}

bool Arrangement::AreCoplanar(const Face& a, const Face& b) const {
  if (Length(Cross(a.normal, b.normal)) > 1e-3) return false;
  const auto isIn = [&](const Face& face, const Face& plane) {
    for (const PointLoop& loop : face.loops) {
      for (const Index p : loop) {
        if (std::abs(HeightOf(At(p), plane)) > 1.5 * tolerance) return false;
      }
    }
    return true;
  };
  return isIn(a, b) || isIn(b, a);
}

void Arrangement::CrossPlanes() {
  for (std::size_t i = 0; i < faces.size(); ++i) {
    faceTree.ForEachNear(faces[i].box, tolerance, [&](std::uint32_t other) {
      Face& a = faces[i];
      Face& b = faces[other];
      if (other <= i || a.operand == b.operand) return;
      if (!Work(a.on.size() + b.on.size())) return;
      if (AreCoplanar(a, b)) {
        a.coplanar.push_back(other);
        b.coplanar.push_back(i);
        AddCoplanarEdges(a, b);
        AddCoplanarEdges(b, a);
      } else {
        AddCommonSegments(a, b);
      }
    });
  }
  for (Face& face : faces) SortUnique(face.segments);
}

void Arrangement::AddSegment(Face& face, const DirectedEdge& segment, const Point3& middle) {
  if (PlaceOf(middle, face) == Place::kInside) face.segments.push_back(segment);
}

void Arrangement::AddCommonSegments(Face& first, Face& second) {
  std::vector<Index> common;
  std::set_intersection(first.on.begin(), first.on.end(), second.on.begin(), second.on.end(),
                        std::back_inserter(common));
  if (common.size() < 2) return;
  const Vector3 along = Cross(first.normal, second.normal);
  std::sort(common.begin(), common.end(), [&](Index p, Index q) {
    const double left = Dot(ToVector(At(p)), along);
    const double right = Dot(ToVector(At(q)), along);
    return left < right || (left == right && p < q);
  });
  for (std::size_t i = 0; i + 1 < common.size(); ++i) {
    const Point3 middle = Between(At(common[i]), At(common[i + 1]), 0.5);
    const Place inFirst = PlaceOf(middle, first);
    const Place inSecond = PlaceOf(middle, second);
    if (inFirst == Place::kOutside || inSecond == Place::kOutside) continue;
    const DirectedEdge segment = Ordered(common[i], common[i + 1]);
    if (inFirst == Place::kInside) first.segments.push_back(segment);
    if (inSecond == Place::kInside) second.segments.push_back(segment);
  }
}

/// Adds the edges of a coplanar face that lie inside of a face.
void Arrangement::AddCoplanarEdges(Face& to, const Face& from) {
  for (const auto& [a, b] : from.boundary) {
    if (!std::binary_search(to.on.begin(), to.on.end(), a) ||
        !std::binary_search(to.on.begin(), to.on.end(), b)) {
      continue;
    }
    AddSegment(to, Ordered(a, b), Between(At(a), At(b), 0.5));
  }
}

}  // namespace KelIFC::building
