#include "kelifc/import/shape/placement_chain.h"

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

}  // namespace KelIFC
