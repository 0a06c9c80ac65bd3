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

bool HasSeveralParts(Boundary& boundary) {
  const Mesh& mesh = boundary.Mesh();
  if (mesh.IsEmpty()) return false;
  const std::vector<std::size_t> parts = FindParts(mesh);
  const std::size_t whole = parts[mesh.LoopOf(0, 0)[0]];
  for (std::size_t face = 1; face < mesh.FaceCount(); ++face) {
    if (parts[mesh.LoopOf(face, 0)[0]] != whole) return true;
  }
  return false;
}

}  // namespace KelIFC::building::idealising
