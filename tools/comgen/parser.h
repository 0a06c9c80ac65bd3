#ifndef KELIFC_TOOLS_COMGEN_PARSER_H_
#define KELIFC_TOOLS_COMGEN_PARSER_H_

#include <string>
#include <string_view>

#include "tools/comgen/description.h"

namespace comgen {

/// Reads a description. Throws schemac::DescriptionError for a text that does not follow the
/// notation; the error contains file, line and column. Names are not looked up; Resolve does that.
Description ParseDescription(const std::string& file, std::string_view text);

}  // namespace comgen

#endif  // KELIFC_TOOLS_COMGEN_PARSER_H_
