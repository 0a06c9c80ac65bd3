#ifndef KELIFC_IMPORT_MODEL_IDENTITY_H_
#define KELIFC_IMPORT_MODEL_IDENTITY_H_

#include <cstddef>
#include <string>

#include "kelifc/platform/guid.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {

/// What the model says of who a product is.
struct IdentityFacts {
  std::string name;  ///< empty if it is unset
  _GUID guid = {};

  /// Its number in the registry, 0 if it has lost it. Told only where there is no name.
  std::size_t instanceNumber = 0;
};

template <class Root>
IdentityFacts ReadIdentity(const Root& product, const IfcServer& server) {
  IdentityFacts facts;
  facts.name = product.GetName();
  facts.guid = product.GetGlobalGUID();
  if (facts.name.empty()) facts.instanceNumber = server.Find(&product);
  return facts;
}

/// What an instance without a name of its own is called: "IFC#123".
std::string NumberName(std::size_t instanceNumber);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_MODEL_IDENTITY_H_
