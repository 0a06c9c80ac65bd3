#ifndef KELIFC_SERVER_RELEASE_TABLES_H_
#define KELIFC_SERVER_RELEASE_TABLES_H_

#include "kelifc/platform/guid.h"
#include "kelifc/server/detail/project_classes.h"

namespace KelIFC {

class IfcUnknown;

// What the server asks of the entity classes of the releases, which stand in a layer above. The
// schema folder defines these functions.

/// An instance of the class that a release has under a name, ignoring the case of letters; null for
/// every other name, the shared ones included, and where memory is lacking. The caller owns it.
IfcUnknown* MakeInstance151(const char* name);
IfcUnknown* MakeInstance20(const char* name);
IfcUnknown* MakeInstance2x(const char* name);
IfcUnknown* MakeInstance2x2(const char* name);
IfcUnknown* MakeInstance2x3(const char* name);

/// If the instance is an IfcRoot of 2x, 2x2 or 2x3, writes its global identifier and gives true;
/// the identifier is null where the instance's text is none. A null instance gives false.
bool ReadGlobalGuid(const IfcUnknown* instance, _GUID& guid);

/// True if the instance is an IfcProduct of 2x, 2x2 or 2x3. A null instance gives false.
bool IsProduct(const IfcUnknown* instance);

/// The instance as the IfcProject of a release, or null. A null instance gives null.
const KelIFC151::IfcProject* AsProject151(const IfcUnknown* instance);
const KelIFC20::IfcProject* AsProject20(const IfcUnknown* instance);
const KelIFC2x::IfcProject* AsProject2x(const IfcUnknown* instance);
const KelIFC2x2::IfcProject* AsProject2x2(const IfcUnknown* instance);
const KelIFC2x3::IfcProject* AsProject2x3(const IfcUnknown* instance);

}  // namespace KelIFC

#endif  // KELIFC_SERVER_RELEASE_TABLES_H_
