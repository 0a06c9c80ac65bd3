#ifndef KELIFC_IMPORT_MODEL_IDENTITY_H_
#define KELIFC_IMPORT_MODEL_IDENTITY_H_

#include <cstddef>
#include <string>

#include "kelifc/platform/guid.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {

/// The name and the identifiers of a product.
struct IdentityFacts {
  std::string name;  ///< empty if unset
  _GUID guid = {};

  /// The number in the registry, 0 if the product is no longer registered. It is read only if the
  /// name is empty.
  std::size_t instanceNumber = 0;

  STEP_DIALECT dialect = STEP_DIALECT_CLASSIC;  ///< of the name
};

template <class Root>
IdentityFacts ReadIdentity(const Root& product, const IfcServer& server) {
  IdentityFacts facts;
  facts.name = product.GetName();
  facts.dialect = server.GetDialect();
  facts.guid = product.GetGlobalGUID();
  if (facts.name.empty()) facts.instanceNumber = server.Find(&product);
  return facts;
}

/// Returns the name of an instance that has no name of its own, for example "IFC#123".
std::string NumberName(std::size_t instanceNumber);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_MODEL_IDENTITY_H_
