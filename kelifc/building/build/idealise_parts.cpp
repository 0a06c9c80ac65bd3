#include "kelifc/building/build/idealise_parts.h"

#include <vector>

#include "kelifc/building/build/point_match.h"

namespace KelIFC::building::idealising {
namespace {

constexpr double kTouching = 1e-6;  // metres

// For each point the part that it belongs to, as the index of one of its points.
std::vector<std::size_t> FindParts(const Mesh& mesh) {
  std::vector<std::size_t> parent = Weld(mesh.points, kTouching);
  const auto root = [&](std::size_t i) {
    while (parent[i] != i) {
      parent[i] = parent[parent[i]];
      i = parent[i];
    }
    return i;
  };
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    const std::size_t first = mesh.LoopOf(face, 0)[0];
    for (std::size_t loop = 0; loop < mesh.LoopCount(face); ++loop) {
      for (const Mesh::Index i : mesh.LoopOf(face, loop)) parent[root(i)] = root(first);
    }
  }
  for (std::size_t i = 0; i < parent.size(); ++i) parent[i] = root(i);
  return parent;
}

}  // namespace

Parts CountParts(Boundary& boundary) {
  const Mesh& mesh = boundary.Mesh();
  if (mesh.IsEmpty()) return {};
  const std::vector<std::size_t> parts = FindParts(mesh);
  std::vector<double> volumes(mesh.points.size(), 0.0);
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    const Mesh::Index first = mesh.LoopOf(face, 0)[0];
    volumes[parts[first]] += Dot(FromOrigin(mesh.points[first]), AreaVectorOf(mesh, face));
  }
  Parts count;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (parts[i] != i || volumes[i] == 0.0) continue;
    ++(volumes[i] < 0.0 ? count.cavities : count.solids);
  }
  return count;
}

}  // namespace KelIFC::building::idealising
