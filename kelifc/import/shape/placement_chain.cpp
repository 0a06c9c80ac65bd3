#include "kelifc/import/shape/placement_chain.h"

namespace KelIFC {

namespace {

bool AreSame(const Vector3& a, const Vector3& b) { return a.x == b.x && a.y == b.y && a.z == b.z; }

}  // namespace

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
  const BRepVertex* turned = nullptr;
  Vector3 normal;
  for (BRepVertex& vertex : target.vertices) {
    ApplyPlacementChain(chain, vertex.position);
    if (turned != nullptr && AreSame(vertex.normal, normal)) {
      vertex.normal = turned->normal;
    } else {
      normal = vertex.normal;
      ApplyPlacementChain(chain, vertex.normal);
    }
    turned = &vertex;
  }
}

}  // namespace KelIFC
