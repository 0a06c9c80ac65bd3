#include "kelifc/model_access.h"

#include "kelifc/geo/ifc_server_object.h"

namespace KelIFC {

IfcServer* GetModel(IIFCServer* server) {
  auto* const object = dynamic_cast<CoIFCServer*>(server);
  return object == nullptr ? nullptr : &object->Model();
}

}  // namespace KelIFC
