#ifndef KELIFC_GEO_READING_IDENTITY_H_
#define KELIFC_GEO_READING_IDENTITY_H_

#include <cstddef>
#include <string>

#include "kelifc/core/global_id.h"
#include "kelifc/platform/guid.h"

namespace KelIFC {

/// Returns the identifier that the 22 characters of the file stand for, or the null identifier if
/// they are no identifier.
inline _GUID GuidOf(const std::string& globalId) {
  _GUID guid = {};
  DecodeGlobalId64(globalId.c_str(), guid);
  return guid;
}

/// Returns the name of a product. A product without a name is named after its instance number.
inline std::string NameOf(const std::string& name, std::size_t id) {
  return name.empty() ? "IFC#" + std::to_string(id) : name;
}

}  // namespace KelIFC

#endif  // KELIFC_GEO_READING_IDENTITY_H_
