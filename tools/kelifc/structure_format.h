#ifndef TOOLS_KELIFC_STRUCTURE_FORMAT_H_
#define TOOLS_KELIFC_STRUCTURE_FORMAT_H_

#include <string>

#include "tools/kelifc/structure.h"

namespace command {

/// Writes the structure as one JSON object. `file` is the path as the user gave it.
std::string StructureJson(const std::string& file, const Structure& structure);

/// Writes the structure as tables for a person.
std::string StructureTable(const Structure& structure);

}  // namespace command

#endif  // TOOLS_KELIFC_STRUCTURE_FORMAT_H_
