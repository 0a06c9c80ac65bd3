#ifndef KELIFC_SERVER_RELEASE_TABLES_H_
#define KELIFC_SERVER_RELEASE_TABLES_H_

#include <cstdint>

#include "kelifc/platform/guid.h"
#include "kelifc/server/detail/project_classes.h"
#include "kelifc/server/entity_name.h"

namespace KelIFC {

class IfcUnknown;

// The operations of the entity classes that the server needs. The schema folder, which is a higher
// layer, defines these functions.

/// Returns a new instance of the class that a release has under a name, ignoring the case of
/// letters. Returns null for every other name, including the names that all releases share, and if
/// there is no memory. The caller owns the instance.
IfcUnknown* MakeInstance151(const EntityName& name);
IfcUnknown* MakeInstance20(const EntityName& name);
IfcUnknown* MakeInstance2x(const EntityName& name);
IfcUnknown* MakeInstance2x2(const EntityName& name);
IfcUnknown* MakeInstance2x3(const EntityName& name);

/// If the instance is an IfcRoot of 2x, 2x2 or 2x3, stores its global identifier and returns true.
/// The identifier is null if the text of the instance is not an identifier. A null instance returns
/// false.
bool ReadGlobalGuid(const IfcUnknown* instance, _GUID& guid);

/// In which lists the registry has an instance.
enum class ListedAs : std::uint8_t {
  kNothing,
  kRoot,     ///< an IfcRoot of 2x, 2x2 or 2x3, and raw text, which can be the text of an IfcRoot
  kProduct,  ///< an IfcProduct of these releases, which is a root, too
};

/// Returns how an instance is listed. A null instance returns ListedAs::kNothing.
ListedAs ListedAsOf(const IfcUnknown* instance);

/// Returns the instance as the IfcProject of a release, or null. A null instance returns null.
const KelIFC151::IfcProject* AsProject151(const IfcUnknown* instance);
const KelIFC20::IfcProject* AsProject20(const IfcUnknown* instance);
const KelIFC2x::IfcProject* AsProject2x(const IfcUnknown* instance);
const KelIFC2x2::IfcProject* AsProject2x2(const IfcUnknown* instance);
const KelIFC2x3::IfcProject* AsProject2x3(const IfcUnknown* instance);

}  // namespace KelIFC

#endif  // KELIFC_SERVER_RELEASE_TABLES_H_
