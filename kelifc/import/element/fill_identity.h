#ifndef KELIFC_IMPORT_ELEMENT_FILL_IDENTITY_H_
#define KELIFC_IMPORT_ELEMENT_FILL_IDENTITY_H_

#include <string>

#include "kelifc/geo/geo_object.h"
#include "kelifc/geo/server_link.h"
#include "kelifc/import/model/identity.h"

namespace KelIFC {

/// Sets the name, the identifier and the server link of an element. If the product has no name, the
/// element is named after the instance number, for example "IFC#123", followed by `suffix`.
void FillIdentity(const IdentityFacts& facts, const ServerLink& server, CoGeoObject& element,
                  const std::string& suffix = {});

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_ELEMENT_FILL_IDENTITY_H_
