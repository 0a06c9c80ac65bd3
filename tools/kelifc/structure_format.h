#ifndef TOOLS_KELIFC_STRUCTURE_FORMAT_H_
#define TOOLS_KELIFC_STRUCTURE_FORMAT_H_

#include <string>

#include "kelifc/kelifc.h"

#include "tools/kelifc/output.h"
#include "tools/kelifc/structure.h"

namespace command {

/// Writes the structure as one JSON object. `file` is the path as the user gave it.
std::string StructureJson(const std::string& file, const Structure& structure);

/// Writes what StructureJson returns for the structure of a server. It reads and writes one item
/// after the other, so the values never exist all at once. `release` is the text of the release.
/// Throws KelIFC::StatusError if a conversion fails, after a part of the text was written.
void WriteStructureJson(Output& output, const std::string& file, const std::string& release,
                        const KelIFC::ComPtr<IGeoStructure>& structure);

/// Writes the structure as tables for a person.
std::string StructureTable(const Structure& structure);

}  // namespace command

#endif  // TOOLS_KELIFC_STRUCTURE_FORMAT_H_
