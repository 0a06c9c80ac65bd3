#ifndef KELIFC_BUILDING_READ_BUILDING_H_
#define KELIFC_BUILDING_READ_BUILDING_H_

#include <cstddef>

#include "kelifc/building/building.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

class IfcServer;

/// Which elements keep the boundary of their body.
enum class KeptBodies { kNone, kOfBodies, kAll };

struct ReadingOptions {
  /// kOfBodies: those of the elements that are neither members nor surfaces.
  KeptBodies keptBodies = KeptBodies::kOfBodies;

  /// The largest number of points of all bodies together, and of one body. A product beyond it
  /// becomes a loss with the reason kLimit.
  std::size_t maxPoints = 200'000'000;
  std::size_t maxBodyPoints = 5'000'000;

  /// The deepest nesting of mapped items, boolean results and decompositions.
  std::size_t maxDepth = 64;
};

/// Reads all structural elements of a model of the releases 2x, 2x2 and 2x3. The model does not
/// change. The result is empty for the other releases and for an empty model. It throws nothing but
/// std::bad_alloc.
KELIFC_API Building ReadBuilding(IfcServer& server, const ReadingOptions& options = {});

}  // namespace KelIFC

#endif  // KELIFC_BUILDING_READ_BUILDING_H_
