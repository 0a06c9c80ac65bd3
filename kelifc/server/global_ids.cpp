#include <string>

#include "kelifc/core/global_id.h"
#include "kelifc/platform/new_guid.h"
#include "kelifc/server/ifc_server.h"

// The operations of the server for global identifiers: the older text form in base 85, and new
// identifiers.

namespace KelIFC {

bool IfcServer::EncodeGUID(const _GUID& guid, char* text) {
  if (text == nullptr) return false;
  EncodeBase85(guid, text);
  return true;
}

bool IfcServer::DecodeGUID(const char* text, _GUID& guid) { return DecodeBase85(text, guid); }

std::string IfcServer::CreateGlobalId() {
  char text[21];
  EncodeBase85(NewGuid(), text);
  return text;
}

std::string IfcServer::CreateGlobalId2x() {
  char text[23];
  const char* encoded = EncodeGlobalId64(NewGuid(), text, sizeof text);
  return encoded == nullptr ? std::string() : encoded;
}

}  // namespace KelIFC
