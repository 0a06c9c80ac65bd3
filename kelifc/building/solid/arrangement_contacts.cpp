#include <algorithm>
#include <cmath>

#include "kelifc/building/solid/arrangement.h"
#include "kelifc/building/solid/arrangement_tools.h"

// Where points, edges and faces of both meshes touch or cross each other.

namespace KelIFC::building {

namespace {

// The square of the sine of the angle between edges that count as parallel.
constexpr double kParallelSquare = 1e-12;

double DistanceTo(const Point3& p, const Point3& a, const Point3& b) {
  return Length(p - Between(a, b, FractionOf(p, a, b)));
}

}  // namespace

void Arrangement::Attach(Edge& edge, Index point) {
  if (point != edge.a && point != edge.b) edge.attached.push_back(point);
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
  if (!(square > kParallelSquare * Dot(u, u) * Dot(v, v))) return;
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

}  // namespace KelIFC::building
