#include <algorithm>
#include <cmath>

#include "kelifc/building/solid/box_tree.h"
#include "kelifc/building/solid/mesh_tools.h"
#include "kelifc/building/solid/vector_math.h"

namespace KelIFC::building {

namespace {

using Ends = std::pair<Mesh::Index, Mesh::Index>;

Ends EndsOf(Mesh::Index a, Mesh::Index b) { return {std::min(a, b), std::max(a, b)}; }

/// The edges that are not used by one face in each direction.
std::vector<Ends> LooseEdgesOf(const Mesh& mesh) {
  std::vector<Ends> result;
  const std::vector<EdgeUse> edges = SortedEdgesOf(mesh);
  for (std::size_t i = 0; i < edges.size();) {
    const Ends ends = EndsOf(edges[i].from, edges[i].to);
    std::size_t end = i;
    while (end < edges.size() && EndsOf(edges[end].from, edges[end].to) == ends) ++end;
    if ((end - i) % 2 == 1) result.push_back(ends);
    i = end;
  }
  return result;
}

/// The points on each edge, from its first end to its second.
class EdgeSplits {
 public:
  EdgeSplits(const Mesh& someMesh, std::vector<Ends> someEdges, double tolerance)
      : mesh(someMesh), edges(std::move(someEdges)), points(edges.size()) {
    std::vector<BuildingBox> boxes(edges.size());
    std::vector<Mesh::Index> ends;
    for (std::size_t i = 0; i < edges.size(); ++i) {
      Extend(boxes[i], mesh.points[edges[i].first]);
      Extend(boxes[i], mesh.points[edges[i].second]);
      ends.insert(ends.end(), {edges[i].first, edges[i].second});
    }
    std::sort(ends.begin(), ends.end());
    ends.erase(std::unique(ends.begin(), ends.end()), ends.end());
    const BoxTree tree(boxes);
    for (const Mesh::Index end : ends) {
      BuildingBox box;
      Extend(box, mesh.points[end]);
      tree.ForEachNear(box, tolerance, [&](std::uint32_t edge) { Add(edge, end, tolerance); });
    }
    for (auto& list : points) std::sort(list.begin(), list.end());
  }

  /// Adds the points between two points of a loop to it.
  void AddBetween(Mesh::Index from, Mesh::Index to, std::vector<Mesh::Index>& loop) const {
    const Ends ends = EndsOf(from, to);
    const auto entry = std::lower_bound(edges.begin(), edges.end(), ends);
    if (entry == edges.end() || *entry != ends) return;
    const auto& list = points[static_cast<std::size_t>(entry - edges.begin())];
    if (from == ends.first) {
      for (auto i = list.begin(); i != list.end(); ++i) loop.push_back(i->second);
    } else {
      for (auto i = list.rbegin(); i != list.rend(); ++i) loop.push_back(i->second);
    }
  }

 private:
  void Add(std::size_t edge, Mesh::Index point, double tolerance) {
    const Point3& a = mesh.points[edges[edge].first];
    const Vector3 along = mesh.points[edges[edge].second] - a;
    const Vector3 there = mesh.points[point] - a;
    const double square = Dot(along, along);
    const double part = Dot(there, along) / square;
    if (point == edges[edge].first || point == edges[edge].second || !(part > 0.0 && part < 1.0)) {
      return;
    }
    if (Length(FromTo(along * part, there)) <= tolerance) points[edge].emplace_back(part, point);
  }

  const Mesh& mesh;
  std::vector<Ends> edges;
  std::vector<std::vector<std::pair<double, Mesh::Index>>> points;
};

}  // namespace

Mesh SplitEdges(const Mesh& mesh, double tolerance) {
  const EdgeSplits splits(mesh, LooseEdgesOf(mesh), tolerance);
  Mesh result;
  result.points = mesh.points;
  std::vector<Mesh::Index> points;
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    result.BeginFace();
    for (std::size_t i = 0; i < mesh.LoopCount(face); ++i) {
      const Mesh::Loop loop = mesh.LoopOf(face, i);
      points.clear();
      for (std::size_t k = 0; k < loop.size(); ++k) {
        points.push_back(loop[k]);
        splits.AddBetween(loop[k], loop[k + 1 < loop.size() ? k + 1 : 0], points);
      }
      result.AddLoop(points);
    }
  }
  return result;
}

}  // namespace KelIFC::building
