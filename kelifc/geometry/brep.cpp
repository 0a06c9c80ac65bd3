#include "kelifc/geometry/brep.h"

namespace KelIFC {

BRep::BRep() = default;
BRep::BRep(const BRep& other) = default;
BRep::BRep(BRep&& other) noexcept = default;
BRep& BRep::operator=(const BRep& other) = default;
BRep& BRep::operator=(BRep&& other) noexcept = default;
BRep::~BRep() = default;

void BRep::operator<<=(const Isometry3& isometry) {
  for (BRepVertex& vertex : vertices) {
    vertex.position = isometry.Apply(vertex.position);
    vertex.normal = isometry.Apply(vertex.normal);
  }
}

}  // namespace KelIFC
