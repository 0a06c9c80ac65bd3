#ifndef KELIFC_BUILDING_BUILD_FINITE_H_
#define KELIFC_BUILDING_BUILD_FINITE_H_

#include "kelifc/building/build/idealise.h"
#include "kelifc/building/building.h"
#include "kelifc/building/mesh.h"

namespace KelIFC::building {

// True if all numbers of a value are finite. An empty box counts as not finite.

bool IsFinite(const Mesh& mesh);
bool IsFinite(const Idealisation& ideal);
bool IsFinite(const BuildingOpening& opening);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_BUILD_FINITE_H_
