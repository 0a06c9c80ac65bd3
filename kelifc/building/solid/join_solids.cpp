#include "kelifc/building/solid/join_solids.h"

#include <algorithm>
#include <vector>

#include "kelifc/building/solid/body.h"
#include "kelifc/building/solid/boolean.h"
#include "kelifc/building/solid/mesh_tools.h"

namespace KelIFC::building {
namespace {

// The union takes about the product of both numbers.
constexpr std::size_t kMostFaces = 1000;
constexpr std::size_t kMostSolids = 32;

}  // namespace

std::optional<Mesh> JoinSolids(const Mesh& mesh) {
  if (mesh.FaceCount() > kMostFaces) return std::nullopt;
  const std::vector<Mesh> solids = PartsOf(mesh);
  if (solids.size() < 2 || solids.size() > kMostSolids) return std::nullopt;
  const bool areSolid = std::all_of(solids.begin(), solids.end(), [](const Mesh& solid) {
    return VolumeOf(solid) > 0.0 && IsClosed(solid);
  });
  if (!areSolid) return std::nullopt;
  Mesh joined = solids[0];
  for (std::size_t i = 1; i < solids.size(); ++i) {
    Mesh sum;
    if (!Combine(joined, solids[i], BooleanOperation::kUnion, sum)) return std::nullopt;
    joined = std::move(sum);
  }
  return joined;
}

}  // namespace KelIFC::building
