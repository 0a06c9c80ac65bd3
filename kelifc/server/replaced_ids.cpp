#include "kelifc/server/replaced_ids.h"

#include "kelifc/server/ifc_server.h"

namespace KelIFC {
namespace {

thread_local IdReplacement* current = nullptr;

}  // namespace

IdReplacement::IdReplacement() : outer(current) { current = this; }

IdReplacement::~IdReplacement() { current = outer; }

std::string IdReplacement::Make() {
  return current == nullptr ? IfcServer::CreateGlobalId2x() : current->MakeNext();
}

std::string IdRecorder::MakeNext() {
  return ids[statement].emplace_back(IfcServer::CreateGlobalId2x());
}

std::string IdReplay::MakeNext() {
  const auto found = ids.find(statement);
  const bool isNoted = found != ids.end() && count < found->second.size();
  return isNoted ? found->second[count++] : IfcServer::CreateGlobalId2x();
}

}  // namespace KelIFC
