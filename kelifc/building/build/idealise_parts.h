#ifndef KELIFC_BUILDING_BUILD_IDEALISE_PARTS_H_
#define KELIFC_BUILDING_BUILD_IDEALISE_PARTS_H_

#include <cstddef>

#include "kelifc/building/build/idealise_boundary.h"

namespace KelIFC::building::idealising {

/// The parts of a boundary that share no point.
struct Parts {
  std::size_t solids = 0;
  std::size_t cavities = 0;  ///< the parts whose faces turn inwards

  /// True if there is more than one part.
  bool IsSeveral() const { return solids + cavities > 1; }
};
Parts CountParts(Boundary& boundary);

}  // namespace KelIFC::building::idealising

#endif  // KELIFC_BUILDING_BUILD_IDEALISE_PARTS_H_
