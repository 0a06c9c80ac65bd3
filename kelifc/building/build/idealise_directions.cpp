#include "kelifc/building/build/idealise_directions.h"

#include <algorithm>
#include <utility>

namespace KelIFC::building::idealising {
namespace {

// The sine of the angle within which directions count as one, and faces as square or parallel.
constexpr double kSameDirection = 0.009;

// The sine of the angle within which edges and normals are parallel except for rounding.
constexpr double kParallel = 2e-4;

// How many clusters of edges and of faces are kept, and of parallel ones.
constexpr std::size_t kMostClusters = 5;
constexpr std::size_t kMostParallel = 64;

// How many of the longest edges and largest faces are looked at.
constexpr std::size_t kMostWeighed = 4000;

struct Weighted {
  Vector3 vector;
  double weight = 0.0;
};

bool AreSame(const Vector3& a, const Vector3& b) { return Length(Cross(a, b)) < kSameDirection; }

void SortByWeight(std::vector<Weighted>& items) {
  std::stable_sort(items.begin(), items.end(),
                   [](const Weighted& a, const Weighted& b) { return a.weight > b.weight; });
}

// Groups vectors that differ by less than the sine of an angle. Each group has the direction of its
// heaviest member.
std::vector<Weighted> Group(std::vector<Weighted> items, double sine, std::size_t most) {
  SortByWeight(items);
  if (items.size() > kMostWeighed) items.resize(kMostWeighed);
  std::vector<Weighted> groups;
  for (const Weighted& item : items) {
    const auto same = std::find_if(groups.begin(), groups.end(), [&](const Weighted& group) {
      return Length(Cross(group.vector, item.vector)) < sine;
    });
    if (same != groups.end()) {
      same->weight += item.weight;
    } else if (groups.size() < most) {
      groups.push_back(item);
    }
  }
  return groups;
}

// Groups vectors; each group has the direction in which most of it is parallel. So the diagonals of
// narrow faces do not turn the direction of their long sides.
std::vector<Weighted> Cluster(std::vector<Weighted> items) {
  std::vector<Weighted> clusters =
      Group(Group(std::move(items), kParallel, kMostParallel), kSameDirection, 4 * kMostClusters);
  SortByWeight(clusters);
  if (clusters.size() > kMostClusters) clusters.resize(kMostClusters);
  return clusters;
}

std::vector<Weighted> EdgesOf(Boundary& boundary) {
  const Mesh& mesh = boundary.Mesh();
  std::vector<Weighted> edges;
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    for (std::size_t loop = 0; loop < mesh.LoopCount(face); ++loop) {
      const Mesh::Loop indices = mesh.LoopOf(face, loop);
      for (std::size_t i = 0; i < indices.size(); ++i) {
        const Vector3 edge =
            mesh.points[indices[(i + 1) % indices.size()]] - mesh.points[indices[i]];
        const double length = Length(edge);
        if (length > 1e-6) edges.push_back({edge / length, length});
      }
    }
  }
  return edges;
}

std::vector<Weighted> NormalsOf(Boundary& boundary) {
  std::vector<Weighted> normals;
  for (const Boundary::Face& face : boundary.Faces()) {
    if (face.area > 1e-10) normals.push_back({face.normal, face.area});
  }
  return normals;
}

void Add(std::vector<Direction>& directions, const Vector3& vector, double length) {
  const auto same = std::find_if(directions.begin(), directions.end(),
                                 [&](const Direction& d) { return AreSame(d.vector, vector); });
  if (same == directions.end()) {
    if (directions.size() < kMostDirections) directions.push_back({vector, length, 0.0, 0.0});
  } else {
    same->length = std::max(same->length, length);
  }
}

}  // namespace

std::vector<Direction> FindDirections(Boundary& boundary, const std::vector<Vector3>& hints) {
  std::vector<Direction> directions;
  for (const Vector3& hint : hints) Add(directions, hint, 0.0);
  for (const Weighted& edge : Cluster(EdgesOf(boundary))) Add(directions, edge.vector, edge.weight);
  for (const Weighted& normal : Cluster(NormalsOf(boundary))) {
    Add(directions, normal.vector, 0.0);
  }
  for (const Boundary::Face& face : boundary.Faces()) {
    for (Direction& direction : directions) {
      const double cosine = std::fabs(Dot(face.normal, direction.vector));
      if (cosine < kSameDirection) direction.beside += face.area;
      if (cosine > 1.0 - kSameDirection * kSameDirection / 2) direction.across += face.area;
    }
  }
  return directions;
}

}  // namespace KelIFC::building::idealising
