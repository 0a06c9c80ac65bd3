#ifndef KELIFC_CORE_INVALID_PARAMETER_H_
#define KELIFC_CORE_INVALID_PARAMETER_H_

#include "kelifc/platform/export.h"

namespace KelIFC {

/// Told what is wrong, ahead of the end of the process.
using InvalidParameterHandler = void (*)(const char* message);

/// Sets what is called for a fault of the host that nothing can be made of, such as reading an
/// Mvector out of range; null brings back the default, which prints a line on standard error. Gives
/// the handler that was set before, null for the default. A handler may end the process in its own
/// way or throw; if it returns, the process is aborted.
KELIFC_API InvalidParameterHandler SetInvalidParameterHandler(InvalidParameterHandler handler);

/// Calls the handler and does not come back.
[[noreturn]] KELIFC_API void FailInvalidParameter(const char* message);

}  // namespace KelIFC

#endif  // KELIFC_CORE_INVALID_PARAMETER_H_
