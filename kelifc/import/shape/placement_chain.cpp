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
  // All transforms are applied to one vertex before the next, which needs one pass over the memory.
  // Neighbouring vertices with the same normal are vertices of one loop: the normal is turned once.
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
