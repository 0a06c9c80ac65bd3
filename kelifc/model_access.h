#ifndef KELIFC_MODEL_ACCESS_H_
#define KELIFC_MODEL_ACCESS_H_

#include "kelifc/geo/interfaces.h"
#include "kelifc/platform/export.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {

/// Returns the model of a server object, for C++ hosts that use both the class library and the
/// object model. A host can then follow a load, or read the instances that the structure was
/// converted from. The model belongs to the server object. Returns null for null and for an object
/// of another library.
KELIFC_API IfcServer* GetModel(IIFCServer* server);

}  // namespace KelIFC

#endif  // KELIFC_MODEL_ACCESS_H_
