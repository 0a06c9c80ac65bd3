#ifndef KELIFC_PLATFORM_NEW_GUID_H_
#define KELIFC_PLATFORM_NEW_GUID_H_

#include "kelifc/platform/guid.h"

namespace KelIFC {

/// Returns a new random identifier of version 4 (RFC 4122). It is never the null identifier. In
/// practice no two calls return the same one, not even in different processes.
_GUID NewGuid();

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_NEW_GUID_H_
