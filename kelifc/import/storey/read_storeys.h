#ifndef KELIFC_IMPORT_STOREY_READ_STOREYS_H_
#define KELIFC_IMPORT_STOREY_READ_STOREYS_H_

#include <vector>

#include "kelifc/import/storey/storey_facts.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {

/// Reads the storeys of a model, in the order of the registry.
template <class Release>
std::vector<StoreyFacts> ReadStoreys(const IfcServer& server);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_STOREY_READ_STOREYS_H_
