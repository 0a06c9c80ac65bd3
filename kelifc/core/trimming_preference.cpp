#include "kelifc/core/trimming_preference.h"

#include "kelifc/core/enum_text.h"

namespace KelIFC {

namespace {

constexpr EnumTextRow kPreferences[] = {
    {"CARTESIAN", IfcTrimmingPreference_CARTESIAN},
    {"PARAMETER", IfcTrimmingPreference_PARAMETER},
};

}  // namespace

const char* ParseTrimmingPreference(IfcTrimmingPreference& result, const char* text) {
  return ParseEnumValue(result, text, IfcTrimmingPreference_NONE, kPreferences);
}

}  // namespace KelIFC
