#include "kelifc/schema/record.h"

#include "kelifc/core/global_id.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {

const char* GlobalId64Reader::Parse(const char* cursor) const {
  cursor = text.Parse(cursor);
  _GUID guid = {};
  if (!DecodeGlobalId64(text.c_str(), guid)) text = STRING(IfcServer::CreateGlobalId2x());
  return cursor;
}

void GlobalId64Writer::Write(std::ostream& out) const {
  if (text.empty()) {
    STRING(IfcServer::CreateGlobalId2x()).Write(out);
  } else {
    text.Write(out);
  }
}

void GlobalId85::Write(std::ostream& out) const {
  if (text.empty()) {
    STRING(IfcServer::CreateGlobalId()).Write(out);
  } else {
    text.Write(out);
  }
}

}  // namespace KelIFC
