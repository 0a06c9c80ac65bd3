#ifndef KELIFC_BUILDING_READ_BUILDING_H_
#define KELIFC_BUILDING_READ_BUILDING_H_

#include <cstddef>
#include <exception>

#include "kelifc/building/building.h"
#include "kelifc/platform/export.h"
#include "kelifc/server/progress_handler.h"

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

  /// Receives the progress of the reading. Each product counts twice: when its values are read, and
  /// when its body is idealised. If it returns false, ReadBuilding throws ReadingCancelled.
  ProgressHandler progress = {};
};

/// Thrown by ReadBuilding if ReadingOptions::progress returned false.
class KELIFC_API ReadingCancelled : public std::exception {
 public:
  ReadingCancelled() = default;
  ReadingCancelled(const ReadingCancelled&) = default;
  ReadingCancelled& operator=(const ReadingCancelled&) = default;
  ~ReadingCancelled() override;

  /// Returns a text for people, in English.
  const char* what() const noexcept override;
};

/// Reads all structural elements of a model of the releases 2x, 2x2 and 2x3 and returns them by
/// value. The model does not change. For another release and for an empty model the result is
/// empty. The only exceptions are std::bad_alloc, ReadingCancelled and those of the progress
/// handler.
KELIFC_API Building ReadBuilding(IfcServer& server, const ReadingOptions& options = {});

}  // namespace KelIFC

#endif  // KELIFC_BUILDING_READ_BUILDING_H_
