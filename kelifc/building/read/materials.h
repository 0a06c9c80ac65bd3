#ifndef KELIFC_BUILDING_READ_MATERIALS_H_
#define KELIFC_BUILDING_READ_MATERIALS_H_

#include <cstddef>

#include "kelifc/building/facts/product_facts.h"
#include "kelifc/building/read/read_context.h"

namespace KelIFC::building {

/// What a material, a list of materials, a layer, a layer set or its usage says. Empty for anything
/// else.
MaterialFacts ReadMaterial(const ReadContext& context, const Instance& definition);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_READ_MATERIALS_H_
