#ifndef KELIFC_PLATFORM_NEW_GUID_H_
#define KELIFC_PLATFORM_NEW_GUID_H_

#include "kelifc/platform/guid.h"

namespace KelIFC {

/// A new random identifier, marked as version 4 of RFC 4122, so it is never the null one.
/// Two calls never give the same identifier in practice, also not in two processes.
_GUID NewGuid();

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_NEW_GUID_H_
