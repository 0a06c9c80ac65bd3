#ifndef KELIFC_MODEL_ACCESS_H_
#define KELIFC_MODEL_ACCESS_H_

#include "kelifc/geo/interfaces.h"
#include "kelifc/platform/export.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {

/// The IfcServer of a server object, for C++ hosts that use both APIs, for example to follow the
/// progress of a load or to read the instances that the structure was made from. The server object
/// owns it. Returns null for null and for an object of another library.
KELIFC_API IfcServer* GetModel(IIFCServer* server);

}  // namespace KelIFC

#endif  // KELIFC_MODEL_ACCESS_H_
