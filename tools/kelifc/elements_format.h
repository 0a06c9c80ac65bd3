#ifndef TOOLS_KELIFC_ELEMENTS_FORMAT_H_
#define TOOLS_KELIFC_ELEMENTS_FORMAT_H_

#include <string>

#include "kelifc/kelifc.h"

#include "tools/kelifc/output.h"

namespace command {

// The elements of a building in three forms. `file` is the path as the user gave it.

/// One JSON object. With `hasBodies`, each element has the boundary of its body if the building
/// kept it.
void WriteElementsJson(Output& output, const std::string& file, const KelIFC::Building& building,
                       bool hasBodies);

/// A row for each element, with a heading (RFC 4180). Unless `isRaw` is set, text that a
/// spreadsheet would take for a formula begins with an apostrophe.
void WriteElementsCsv(Output& output, const KelIFC::Building& building, bool isRaw);

/// Tables for a person.
std::string ElementsTable(const std::string& file, const KelIFC::Building& building);

/// The table of the losses, with its title; empty if there are none.
std::string LossTable(const KelIFC::Building& building);

}  // namespace command

#endif  // TOOLS_KELIFC_ELEMENTS_FORMAT_H_
