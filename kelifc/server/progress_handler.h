#ifndef KELIFC_SERVER_PROGRESS_HANDLER_H_
#define KELIFC_SERVER_PROGRESS_HANDLER_H_

#include <cstdint>
#include <functional>

namespace KelIFC {

/// Receives the progress of an operation: the work that is done and the work in total, in the unit
/// of the operation. If it returns false, the operation stops. It must not use the server. The
/// thread that started the operation calls it. An empty handler receives nothing.
using ProgressHandler = std::function<bool(std::uint64_t done, std::uint64_t total)>;

}  // namespace KelIFC

#endif  // KELIFC_SERVER_PROGRESS_HANDLER_H_
