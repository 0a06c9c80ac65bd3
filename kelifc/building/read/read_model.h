#ifndef KELIFC_BUILDING_READ_READ_MODEL_H_
#define KELIFC_BUILDING_READ_READ_MODEL_H_

#include "kelifc/building/facts/product_facts.h"
#include "kelifc/building/read_building.h"

namespace KelIFC::building {

/// Reads what a model of 2x, 2x2 or 2x3 says of its products, in one pass over the products. The
/// model does not change.
ModelFacts ReadModel(IfcServer& server, const ReadingOptions& options);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_READ_READ_MODEL_H_
