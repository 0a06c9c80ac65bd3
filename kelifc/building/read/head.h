#ifndef KELIFC_BUILDING_READ_HEAD_H_
#define KELIFC_BUILDING_READ_HEAD_H_

#include "kelifc/building/building.h"
#include "kelifc/building/read/placements.h"
#include "kelifc/building/read/relations.h"

namespace KelIFC::building {

/// What a model says of itself: its release, project, units and storeys. The storeys
/// are in the order of the file and have no heights.
Building ReadHead(ReadContext& context, const Relations& relations, PlacementReader& placements);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_READ_HEAD_H_
