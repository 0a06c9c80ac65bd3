#include "export/svg/lines.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <tuple>
#include <utility>

#include "export/svg/element_form.h"

namespace KelIFC::exporting::svg {
namespace {

constexpr double kLooksUp = 0.02;  // the least z of the unit normal of a face that looks upwards
constexpr double kNoFold = 0.94;  // faces whose normals have this product, or more, hide their edge

// An edge of a face that looks upwards.
struct UpEdge {
  Mesh::Index from = 0;
  Mesh::Index to = 0;
  std::size_t face = 0;
};

// The unit normal of a face; zero if the face has no area.
Vector3 NormalOf(const Mesh& mesh, std::size_t face) {
  Vector3 sum;
  const Mesh::Loop loop = mesh.LoopOf(face, 0);
  for (std::size_t i = 2; i < loop.size(); ++i) {
    const Point3& origin = mesh.points[loop[0]];
    sum = sum + Cross(mesh.points[loop[i - 1]] - origin, mesh.points[loop[i]] - origin);
  }
  Normalise(sum);
  return sum;
}

void AddEdges(const Mesh& mesh, std::size_t face, std::vector<UpEdge>& edges) {
  for (std::size_t l = 0; l < mesh.LoopCount(face); ++l) {
    const Mesh::Loop loop = mesh.LoopOf(face, l);
    for (std::size_t i = 0; i < loop.size(); ++i) {
      edges.push_back({loop[i], loop[i + 1 < loop.size() ? i + 1 : 0], face});
    }
  }
}

// Removes the edges between two faces that hardly form a fold. Of a fold one edge stays.
std::vector<UpEdge> VisibleEdges(std::vector<UpEdge> edges, const std::vector<Vector3>& normals) {
  const auto key = [](const UpEdge& e) {
    return std::tuple(std::min(e.from, e.to), std::max(e.from, e.to), e.from, e.face);
  };
  std::sort(edges.begin(), edges.end(),
            [&](const UpEdge& a, const UpEdge& b) { return key(a) < key(b); });
  std::vector<UpEdge> visible;
  for (std::size_t i = 0; i < edges.size();) {
    std::size_t end = i + 1;
    while (end < edges.size() &&
           std::minmax(edges[end].from, edges[end].to) == std::minmax(edges[i].from, edges[i].to)) {
      ++end;
    }
    const bool isHidden =
        end - i > 1 && Dot(normals[edges[i].face], normals[edges[end - 1].face]) >= kNoFold;
    if (!isHidden) visible.push_back(edges[i]);
    i = end;
  }
  return visible;
}

// Joins edges to lines as long as each ends where another one starts.
std::vector<PlanLine> Join(const Mesh& mesh, std::vector<UpEdge> edges) {
  std::sort(edges.begin(), edges.end(), [](const UpEdge& a, const UpEdge& b) {
    return std::pair(a.from, a.to) < std::pair(b.from, b.to);
  });
  std::vector<bool> isUsed(edges.size());
  // The first edge from a point that is not used; the number of the edges if there is none.
  const auto next = [&](Mesh::Index from) {
    const auto first = std::lower_bound(edges.begin(), edges.end(), from,
                                        [](const UpEdge& e, Mesh::Index f) { return e.from < f; });
    auto at = static_cast<std::size_t>(std::distance(edges.begin(), first));
    constexpr std::size_t kMostBranches = 16;  // a point with more of them ends the line
    const std::size_t end = std::min(edges.size(), at + kMostBranches);
    while (at < end && edges[at].from == from && isUsed[at]) ++at;
    return at < end && edges[at].from == from ? at : edges.size();
  };
  std::vector<PlanLine> lines;
  for (std::size_t start = 0; start < edges.size(); ++start) {
    if (isUsed[start]) continue;
    PlanLine line;
    std::size_t at = start;
    while (at < edges.size()) {
      isUsed[at] = true;
      const Point3& p = mesh.points[edges[at].from];
      line.points.emplace_back(p.x, p.y);
      const Mesh::Index to = edges[at].to;
      line.isClosed = to == edges[start].from;
      at = line.isClosed ? edges.size() : next(to);
      if (at == edges.size() && !line.isClosed) {
        line.points.emplace_back(mesh.points[to].x, mesh.points[to].y);
      }
    }
    lines.push_back(std::move(line));
  }
  return lines;
}

std::vector<PlanLine> HullLine(const Mesh& solid) {
  std::vector<Point2> points;
  points.reserve(solid.points.size());
  for (const Point3& p : solid.points) points.emplace_back(p.x, p.y);
  Outline hull = ConvexHull(std::move(points));
  if (hull.empty()) return {};
  return {{std::move(hull), true}};
}

}  // namespace

Outline ConvexHull(std::vector<Point2> points) {
  std::sort(points.begin(), points.end(), [](const Point2& a, const Point2& b) {
    return std::pair(a.x, a.y) < std::pair(b.x, b.y);
  });
  Outline hull;
  // The lower chain from left to right, then the upper one back.
  const auto add = [&hull](const Point2& p, std::size_t fixed) {
    while (hull.size() > fixed + 1 &&
           Cross(hull.back() - hull[hull.size() - 2], p - hull.back()) <= 0.0) {
      hull.pop_back();
    }
    hull.push_back(p);
  };
  for (const Point2& p : points) add(p, 0);
  const std::size_t lower = hull.empty() ? 0 : hull.size() - 1;
  for (std::size_t i = points.size(); i-- > 1;) add(points[i - 1], lower);
  if (!hull.empty()) hull.pop_back();
  if (hull.size() < 3) hull.clear();
  return hull;
}

std::vector<PlanLine> LinesFromAbove(const Mesh& solid) {
  std::vector<Vector3> normals(solid.FaceCount());
  std::vector<UpEdge> edges;
  for (std::size_t face = 0; face < solid.FaceCount(); ++face) {
    normals[face] = NormalOf(solid, face);
    if (normals[face].z > kLooksUp) AddEdges(solid, face, edges);
  }
  if (edges.empty()) return HullLine(solid);
  return Join(solid, VisibleEdges(std::move(edges), normals));
}

std::vector<PlanLine> LinesFromAbove(const BuildingElement& element, const Mesh& solid) {
  const bool isStraight = element.member && element.member->curve == CurveForm::kLine;
  if (isStraight && (IsLevelMember(element) || IsSloping(element))) return HullLine(solid);
  return LinesFromAbove(solid);
}

}  // namespace KelIFC::exporting::svg
