#ifndef KELIFC_BUILDING_SOLID_OPERATION_CACHE_H_
#define KELIFC_BUILDING_SOLID_OPERATION_CACHE_H_

#include <cstddef>

#include "kelifc/building/facts/keyed_cache.h"
#include "kelifc/building/solid/body.h"

namespace KelIFC::building {

/// The result of a boolean operation in the coordinates of its item.
struct DoneOperation {
  EvaluatedBody body;
  std::size_t points = 0;  ///< how many points were made for it
  std::size_t visits = 0;  ///< how many items were visited for it
};

/// Keeps the results of boolean operations. Many elements of a building are cut in the same way,
/// each with its own instances.
class OperationCache : public KeyedCache<DoneOperation> {};

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_SOLID_OPERATION_CACHE_H_
