#include "kelifc/import/placement_chain.h"

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
  // other.
  for (BRepVertex& vertex : target.vertices) {
    for (const Isometry3& frame : chain) {
      vertex.position = frame.Apply(vertex.position);
      vertex.normal = frame.Apply(vertex.normal);
    }
  }
}

}  // namespace KelIFC
