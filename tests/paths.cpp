#include "tests/paths.h"

namespace KelIFC {

const char* const kExamplesDir = KELIFC_EXAMPLES_DIR;
const char* const kSourceDir = KELIFC_SOURCE_DIR;

}  // namespace KelIFC
