#include "kelifc/building/build/idealise_directions.h"

#include <algorithm>

namespace KelIFC::building::idealising {
namespace {

// The sine of the angle within which directions count as one, and faces as square or parallel.
constexpr double kSameDirection = 0.009;

// How many clusters of edges and of faces are kept.
constexpr std::size_t kMostClusters = 5;

// How many of the longest edges and largest faces are looked at.
constexpr std::size_t kMostWeighed = 4000;

struct Weighted {
  Vector3 vector;
  double weight = 0.0;
};

bool AreSame(const Vector3& a, const Vector3& b) { return Length(Cross(a, b)) < kSameDirection; }

// Groups vectors; each group has the direction of its heaviest member.
std::vector<Weighted> Cluster(std::vector<Weighted> items) {
  std::stable_sort(items.begin(), items.end(),
                   [](const Weighted& a, const Weighted& b) { return a.weight > b.weight; });
  if (items.size() > kMostWeighed) items.resize(kMostWeighed);
  std::vector<Weighted> clusters;
  for (const Weighted& item : items) {
    const auto same = std::find_if(clusters.begin(), clusters.end(), [&](const Weighted& cluster) {
      return AreSame(cluster.vector, item.vector);
    });
    if (same != clusters.end()) {
      same->weight += item.weight;
    } else if (clusters.size() < 4 * kMostClusters) {
      clusters.push_back(item);
    }
  }
  std::stable_sort(clusters.begin(), clusters.end(),
                   [](const Weighted& a, const Weighted& b) { return a.weight > b.weight; });
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
