#ifndef KELIFC_CORE_INVALID_PARAMETER_H_
#define KELIFC_CORE_INVALID_PARAMETER_H_

#include "kelifc/platform/export.h"

namespace KelIFC {

/// Receives a message that says what is wrong. It is called before the process ends.
using InvalidParameterHandler = void (*)(const char* message);

/// Sets the handler for host errors that the library cannot recover from, such as reading an
/// Mvector out of range. Null restores the default handler, which prints a line to the standard
/// error stream. Returns the previous handler, null for the default. A handler may end the process
/// itself or throw. If it returns, the process is aborted.
KELIFC_API InvalidParameterHandler SetInvalidParameterHandler(InvalidParameterHandler handler);

/// Calls the handler. Does not return.
[[noreturn]] KELIFC_API void FailInvalidParameter(const char* message);

}  // namespace KelIFC

#endif  // KELIFC_CORE_INVALID_PARAMETER_H_
