#ifndef KELIFC_IMPORT_STOREY_STOREY_FACTS_H_
#define KELIFC_IMPORT_STOREY_STOREY_FACTS_H_

#include <cstddef>
#include <string>

#include "kelifc/platform/guid.h"
#include "kelifc/server/load_options.h"

namespace KelIFC {

/// A storey of the model. Heights are in the length unit of the file.
struct StoreyFacts {
  /// The z of the storey's own placement, relative to the placement that contains it. It is 0 if
  /// the storey has no placement in space.
  double level = 0.0;

  /// The attribute Elevation, 0 if unset.
  double elevation = 0.0;

  std::string name;  ///< empty if unset
  _GUID guid = {};
  /// The number in the registry. It is read only if the name is empty.
  std::size_t instanceNumber = 0;

  STEP_DIALECT dialect = STEP_DIALECT_CLASSIC;  ///< of the name
};

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_STOREY_STOREY_FACTS_H_
