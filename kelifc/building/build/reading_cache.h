#ifndef KELIFC_BUILDING_BUILD_READING_CACHE_H_
#define KELIFC_BUILDING_BUILD_READING_CACHE_H_

#include <optional>

#include "kelifc/building/build/idealise_reading.h"
#include "kelifc/building/facts/keyed_cache.h"

namespace KelIFC::building::idealising {

/// The result of the search for the best reading of a subject, in the local coordinates of its
/// boundary. None of it depends on the place of the element in the world.
struct FoundReading {
  std::optional<Reading> best;  ///< without its solid
  BuildingBox box;              ///< of the solid of `best`
  bool isSeveral = false;       ///< the boundary was found to fall into several parts
};

/// Keeps what was found for the subjects of a model. Many elements of a building are equal except
/// for their place, so the search is made once for them.
class ReadingCache : public KeyedCache<FoundReading> {};

}  // namespace KelIFC::building::idealising

#endif  // KELIFC_BUILDING_BUILD_READING_CACHE_H_
