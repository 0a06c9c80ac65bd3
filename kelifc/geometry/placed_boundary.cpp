#include "kelifc/geometry/placed_boundary.h"

namespace KelIFC {

namespace {

bool AreSame(const Vector3& a, const Vector3& b) { return a.x == b.x && a.y == b.y && a.z == b.z; }

}  // namespace

BRep PlacedBoundary::ToWorld() const {
  if (shape == nullptr) return {};
  BRep placed = *shape;
  // All transforms are applied to one vertex before the next, which needs one pass over the memory.
  // Neighbouring vertices with the same normal are vertices of one loop: the normal is turned once.
  const BRepVertex* turned = nullptr;
  Vector3 normal;
  for (BRepVertex& vertex : placed.vertices) {
    for (const Isometry3& frame : transforms) vertex.position = frame.Apply(vertex.position);
    if (turned != nullptr && AreSame(vertex.normal, normal)) {
      vertex.normal = turned->normal;
    } else {
      normal = vertex.normal;
      for (const Isometry3& frame : transforms) vertex.normal = frame.Apply(vertex.normal);
    }
    turned = &vertex;
  }
  return placed;
}

}  // namespace KelIFC
