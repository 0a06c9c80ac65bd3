#ifndef KELIFC_CORE_TRIMMING_PREFERENCE_H_
#define KELIFC_CORE_TRIMMING_PREFERENCE_H_

#include <cstdint>

#include "kelifc/platform/export.h"

namespace KelIFC {

/// Which of the two kinds of trims of a curve is meant where both are given.
enum IfcTrimmingPreference : std::int32_t {
  IfcTrimmingPreference_NONE = 0,  ///< none that was understood
  IfcTrimmingPreference_CARTESIAN = 1,
  IfcTrimmingPreference_PARAMETER = 2,
};

/// Reads a preference; one that is missing or unknown gives IfcTrimmingPreference_NONE. Gives the
/// cursor as ENUM::Parse does.
KELIFC_API const char* ParseTrimmingPreference(IfcTrimmingPreference& result, const char* text);

}  // namespace KelIFC

#endif  // KELIFC_CORE_TRIMMING_PREFERENCE_H_
