#include "kelifc/core/trimming_preference.h"

namespace KelIFC {

const char* ParseTrimmingPreference(IfcTrimmingPreference& result, const char* text) {
  return ParseEnumValue(result, text, IfcTrimmingPreference_NONE, kIfcTrimmingPreferenceTable);
}

}  // namespace KelIFC
