#ifndef KELIFC_BUILDING_BUILD_IDEALISE_PARTS_H_
#define KELIFC_BUILDING_BUILD_IDEALISE_PARTS_H_

#include "kelifc/building/build/idealise_boundary.h"

namespace KelIFC::building::idealising {

/// True if the boundary falls into parts that have no point in common.
bool HasSeveralParts(Boundary& boundary);

}  // namespace KelIFC::building::idealising

#endif  // KELIFC_BUILDING_BUILD_IDEALISE_PARTS_H_
