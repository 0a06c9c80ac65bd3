#ifndef KELIFC_IMPORT_STOREY_STOREY_FACTS_H_
#define KELIFC_IMPORT_STOREY_STOREY_FACTS_H_

#include <cstddef>
#include <string>

#include "kelifc/platform/guid.h"

namespace KelIFC {

/// What the model says of a storey. Heights are in the unit of the file.
struct StoreyFacts {
  /// The z of its own placement, in the frame of what it is placed in; 0 where there is none.
  double level = 0.0;

  /// Its attribute of that name, 0 where it is unset.
  double elevation = 0.0;

  std::string name;
  _GUID guid = {};
  std::size_t instanceNumber = 0;
};

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_STOREY_STOREY_FACTS_H_
