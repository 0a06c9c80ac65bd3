#ifndef KELIFC_MODEL_ACCESS_H_
#define KELIFC_MODEL_ACCESS_H_

#include "kelifc/geo/interfaces.h"
#include "kelifc/platform/export.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {

/// The model that a server object holds, for C++ hosts that use both faces of the library: such as
/// to follow a load, or to look at the instances that the structure was made from. It belongs to
/// the server object. Null for null, and for an object that is not of this library.
KELIFC_API IfcServer* GetModel(IIFCServer* server);

}  // namespace KelIFC

#endif  // KELIFC_MODEL_ACCESS_H_
