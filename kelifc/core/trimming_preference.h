#ifndef KELIFC_CORE_TRIMMING_PREFERENCE_H_
#define KELIFC_CORE_TRIMMING_PREFERENCE_H_

#include <cstdint>

#include "kelifc/core/enum_text.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

/// The kind of trim that counts if a curve has trims of both kinds.
enum IfcTrimmingPreference : std::int32_t {
  IfcTrimmingPreference_NONE = 0,  ///< missing or not understood
  IfcTrimmingPreference_CARTESIAN = 1,
  IfcTrimmingPreference_PARAMETER = 2,
};

/// The texts of IfcTrimmingPreference.
inline constexpr EnumTextRow kIfcTrimmingPreferenceTable[] = {
    {"CARTESIAN", IfcTrimmingPreference_CARTESIAN},
    {"PARAMETER", IfcTrimmingPreference_PARAMETER},
};

/// Parses a preference. A missing or unknown one is stored as IfcTrimmingPreference_NONE. Returns
/// the cursor as ENUM::Parse does.
KELIFC_API const char* ParseTrimmingPreference(IfcTrimmingPreference& result, const char* text);

}  // namespace KelIFC

#endif  // KELIFC_CORE_TRIMMING_PREFERENCE_H_
