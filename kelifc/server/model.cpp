#include "kelifc/core/references/model.h"

#include <cstdint>

#include "kelifc/server/ifc_server.h"

namespace KelIFC {

IfcUnknown* FindInstance(IfcServer* server, std::size_t number) {
  return server == nullptr ? nullptr : server->GetItem(number);
}

std::size_t FindNumber(const IfcServer* server, const IfcUnknown* instance) {
  return server == nullptr ? 0 : server->Find(instance);
}

IfcUnknown* ParseInstance(IfcServer* server, const char* text, const char** end) {
  return server == nullptr ? nullptr : server->ParseClass(text, end);
}

std::size_t AddInstance(IfcServer* server, IfcUnknown* instance) {
  return server == nullptr ? 0 : server->AddItem(instance);
}

// The instances of statements are registered in the order of the file.
bool IsReadLater(const IfcServer* server, std::size_t number) {
  if (server == nullptr || !server->load.isPostponed) return false;
  const std::uint32_t position = server->idToIndex.Find(number);  // kNone is not below the end
  const std::uint32_t current = server->idToIndex.Find(server->load.parsedNumber);
  return position < server->load.statedEnd && position > current;
}

}  // namespace KelIFC
