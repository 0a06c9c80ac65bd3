#ifndef KELIFC_BUILDING_BUILD_ASSEMBLE_H_
#define KELIFC_BUILDING_BUILD_ASSEMBLE_H_

#include "kelifc/building/building.h"
#include "kelifc/building/facts/product_facts.h"
#include "kelifc/building/read_building.h"

namespace KelIFC::building {

/// Makes a building from what was read of a model: the bodies, their idealisations, and the ledger,
/// in which each product is an element, decomposed or a loss. No IFC file is needed here. The items
/// of a product are released after its body is made. Throws std::bad_alloc and
/// ReadingCancelled.
Building Assemble(ModelFacts model, const ReadingOptions& options);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_BUILD_ASSEMBLE_H_
