#include "kelifc/import/element/fill_identity.h"

namespace KelIFC {

void FillIdentity(const IdentityFacts& facts, const ServerLink& server, CoGeoObject& element,
                  const std::string& suffix) {
  element.name = facts.name.empty() ? NumberName(facts.instanceNumber) + suffix : facts.name;
  element.dialect = facts.dialect;
  element.guid = facts.guid;
  element.server = server;
}

}  // namespace KelIFC
