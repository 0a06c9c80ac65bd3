#include <algorithm>
#include <cmath>
#include <iterator>

#include "kelifc/building/solid/arrangement.h"
#include "kelifc/building/solid/arrangement_tools.h"

// What splits each face: the points on its edges, and the segments in which faces of the other mesh
// cross it.

namespace KelIFC::building {

namespace {

// Faces are in one plane if the sine of the angle between their normals is at most this, and the
// points of one are within so many tolerances of the plane of the other.
constexpr double kSamePlaneSine = 1e-3;
constexpr double kSamePlaneTolerances = 1.5;

template <typename T>
void SortUnique(std::vector<T>& values) {
  std::sort(values.begin(), values.end());
  values.erase(std::unique(values.begin(), values.end()), values.end());
}

}  // namespace

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
  if (Length(Cross(a.normal, b.normal)) > kSamePlaneSine) return false;
  const auto isIn = [&](const Face& face, const Face& plane) {
    for (const PointLoop& loop : face.loops) {
      for (const Index p : loop) {
        if (std::abs(HeightOf(At(p), plane)) > kSamePlaneTolerances * tolerance) return false;
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
