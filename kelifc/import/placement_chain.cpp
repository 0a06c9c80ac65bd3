#include "kelifc/import/placement_chain.h"

#include <cstring>

namespace KelIFC {

void ApplyPlacementChain(const PlacementChain& chain, Point3& target) {
  for (const Isometry3& frame : chain) target = frame.Apply(target);
}

void ApplyPlacementChain(const PlacementChain& chain, Vector3& target) {
  for (const Isometry3& frame : chain) target = frame.Apply(target);
}

void ApplyPlacementChain(const PlacementChain& chain, Mvector<Point3>& target) {
  for (const Isometry3& frame : chain) frame.Apply(target);
}

void ApplyPlacementChain(const PlacementChain& chain, BRep& target) {
  // Vertex by vertex, which does to each what `target <<= frame` does for one frame after the
  // other. The vertices of a loop have one normal, which is turned once.
  Vector3 normal;
  Vector3 turned;
  for (BRepVertex& vertex : target.vertices) {
    ApplyPlacementChain(chain, vertex.position);
    if (std::memcmp(&vertex.normal, &normal, sizeof normal) != 0) {
      normal = vertex.normal;
      turned = normal;
      ApplyPlacementChain(chain, turned);
    }
    vertex.normal = turned;
  }
}

}  // namespace KelIFC
