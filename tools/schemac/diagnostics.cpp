#include "tools/schemac/diagnostics.h"

namespace schemac {

DescriptionError::DescriptionError(const Place& place, const std::string& message)
    : std::runtime_error(place.file + ":" + std::to_string(place.line) + ":" +
                         std::to_string(place.column) + ": error: " + message) {}

}  // namespace schemac
