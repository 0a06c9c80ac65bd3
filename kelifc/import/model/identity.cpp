#include "kelifc/import/model/identity.h"

namespace KelIFC {

std::string NumberName(std::size_t instanceNumber) {
  return "IFC#" + std::to_string(instanceNumber);
}

void FillIdentity(const IdentityFacts& facts, const ServerLink& server, CoGeoObject& element,
                  const std::string& suffix) {
  element.name = facts.name.empty() ? NumberName(facts.instanceNumber) + suffix : facts.name;
  element.guid = facts.guid;
  element.server = server;
}

}  // namespace KelIFC
