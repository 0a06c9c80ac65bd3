#include "kelifc/building/build/idealise_directions.h"

#include <algorithm>
#include <cmath>
#include <tuple>
#include <utility>

namespace KelIFC::building::idealising {
namespace {

// The sine of the angle within which directions count as one, and faces as square or parallel.
constexpr double kSameDirection = 0.009;

// The sine of the angle within which edges and normals are parallel except for rounding.
constexpr double kParallel = 2e-4;

// The difference of the coordinates of normals that are equal except for rounding.
constexpr double kEqual = 1e-4;

// How many clusters of edges and of faces are kept, and how many parallel ones each may have.
constexpr std::size_t kMostClusters = 5;
constexpr std::size_t kMostParallel = 256;

// How many of the longest edges and largest faces are looked at.
constexpr std::size_t kMostWeighed = 4000;

struct Weighted {
  Vector3 vector;
  double weight = 0.0;
};

bool AreSame(const Vector3& a, const Vector3& b, double sine = kSameDirection) {
  const double cosine = Dot(a, b);
  return 1.0 - cosine * cosine < sine * sine;
}

void SortByWeight(std::vector<Weighted>& items) {
  std::stable_sort(items.begin(), items.end(),
                   [](const Weighted& a, const Weighted& b) { return a.weight > b.weight; });
}

// Adds up vectors that are parallel except for rounding, so that a face that is cut into triangles
// counts as one.
std::vector<Weighted> Merge(std::vector<Weighted> items) {
  for (Weighted& item : items) {
    const Vector3& v = item.vector;
    const bool isNegative =
        v.z < -kEqual || (v.z < kEqual && (v.y < -kEqual || (v.y < kEqual && v.x < 0.0)));
    if (isNegative) item.vector = -v;
  }
  const auto key = [](const Weighted& item) {
    const Vector3& v = item.vector;
    return std::tuple(std::llround(v.x / kEqual), std::llround(v.y / kEqual),
                      std::llround(v.z / kEqual));
  };
  std::vector<std::pair<std::tuple<long long, long long, long long>, std::size_t>> order;
  order.reserve(items.size());
  for (std::size_t i = 0; i < items.size(); ++i) order.emplace_back(key(items[i]), i);
  std::sort(order.begin(), order.end());
  std::vector<Weighted> merged;
  for (std::size_t i = 0; i < order.size(); ++i) {
    const Weighted& item = items[order[i].second];
    if (i > 0 && order[i].first == order[i - 1].first) {
      merged.back().weight += item.weight;
    } else {
      merged.push_back(item);
    }
  }
  return merged;
}

// A group of vectors about its heaviest one.
struct Group {
  Weighted sum;
  std::vector<Weighted> items;
};

// Groups vectors, which must be sorted by weight.
std::vector<Group> MakeGroups(const std::vector<Weighted>& items, double sine, std::size_t most) {
  std::vector<Group> groups;
  for (const Weighted& item : items) {
    const auto same = std::find_if(groups.begin(), groups.end(), [&](const Group& group) {
      return AreSame(group.sum.vector, item.vector, sine);
    });
    if (same != groups.end()) {
      same->sum.weight += item.weight;
      same->items.push_back(item);
    } else if (groups.size() < most) {
      groups.push_back({item, {item}});
    }
  }
  return groups;
}

// The direction in which most of a group is parallel: the diagonals of narrow faces do not turn the
// direction of their long sides.
Vector3 MainDirection(const Group& group) {
  const std::vector<Group> parallel = MakeGroups(group.items, kParallel, kMostParallel);
  return std::max_element(
             parallel.begin(), parallel.end(),
             [](const Group& a, const Group& b) { return a.sum.weight < b.sum.weight; })
      ->sum.vector;
}

// Groups vectors, and returns the heaviest groups.
std::vector<Weighted> Cluster(std::vector<Weighted> items) {
  SortByWeight(items);
  if (items.size() > kMostWeighed) items.resize(kMostWeighed);
  std::vector<Group> groups = MakeGroups(items, kSameDirection, 4 * kMostClusters);
  std::stable_sort(groups.begin(), groups.end(),
                   [](const Group& a, const Group& b) { return a.sum.weight > b.sum.weight; });
  if (groups.size() > kMostClusters) groups.resize(kMostClusters);
  std::vector<Weighted> clusters;
  clusters.reserve(groups.size());
  for (const Group& group : groups) clusters.push_back({MainDirection(group), group.sum.weight});
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

std::vector<Vector3> LargestNormals(Boundary& boundary, std::size_t most) {
  std::vector<Weighted> merged = Merge(NormalsOf(boundary));
  SortByWeight(merged);
  if (merged.size() > most) merged.resize(most);
  std::vector<Vector3> normals;
  normals.reserve(merged.size());
  for (const Weighted& normal : merged) normals.push_back(normal.vector);
  return normals;
}

std::optional<Vector3> MainEdgeDirection(Boundary& boundary) {
  const std::vector<Weighted> merged = Merge(EdgesOf(boundary));
  const auto longest =
      std::max_element(merged.begin(), merged.end(),
                       [](const Weighted& a, const Weighted& b) { return a.weight < b.weight; });
  if (longest == merged.end()) return std::nullopt;
  return longest->vector;
}

}  // namespace KelIFC::building::idealising
