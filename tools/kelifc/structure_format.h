#ifndef TOOLS_KELIFC_STRUCTURE_FORMAT_H_
#define TOOLS_KELIFC_STRUCTURE_FORMAT_H_

#include <string>

#include "tools/kelifc/structure.h"

namespace command {

/// The structure as one JSON object. `file` is the path as the user gave it.
std::string StructureJson(const std::string& file, const Structure& structure);

/// The structure as tables for a person to read.
std::string StructureTable(const Structure& structure);

}  // namespace command

#endif  // TOOLS_KELIFC_STRUCTURE_FORMAT_H_
