#ifndef KELIFC_TOOLS_SCHEMAC_PARSER_H_
#define KELIFC_TOOLS_SCHEMAC_PARSER_H_

#include <string>
#include <string_view>

#include "tools/schemac/description.h"

namespace schemac {

/// Reads one description file and adds what it says to `description`. docs/schema-notation.md
/// describes the notation. Throws DescriptionError at the first line that it cannot read.
void ParseDescription(const std::string& file, std::string_view text, Description& description);

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_PARSER_H_
