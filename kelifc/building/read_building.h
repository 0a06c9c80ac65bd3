#ifndef KELIFC_BUILDING_READ_BUILDING_H_
#define KELIFC_BUILDING_READ_BUILDING_H_

#include <cstddef>

#include "kelifc/building/building.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

class IfcServer;

/// Which elements keep the boundary of their body in BuildingBody::mesh.
enum class KeptBodies {
  kNone,      ///< no element
  kOfBodies,  ///< the elements of the kind kBody
  kAll        ///< all elements
};

/// What ReadBuilding keeps, and the limits that protect the host from damaged or malicious files. A
/// product that exceeds a limit becomes a loss with the reason kLimit.
struct ReadingOptions {
  KeptBodies keptBodies = KeptBodies::kOfBodies;  ///< which elements have a mesh

  std::size_t maxPoints = 200'000'000;    ///< the largest number of points of all bodies together
  std::size_t maxBodyPoints = 5'000'000;  ///< the largest number of points of one body

  /// The deepest nesting of mapped items, boolean results and decompositions.
  std::size_t maxDepth = 64;
};

/// Reads all structural elements of a model of the releases 2x, 2x2 and 2x3 and returns them by
/// value. The model does not change. For another release and for an empty model the result is
/// empty. The only exception is std::bad_alloc.
KELIFC_API Building ReadBuilding(IfcServer& server, const ReadingOptions& options = {});

}  // namespace KelIFC

#endif  // KELIFC_BUILDING_READ_BUILDING_H_
