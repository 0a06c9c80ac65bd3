#ifndef TOOLS_KELIFC_DIFF_FORMAT_H_
#define TOOLS_KELIFC_DIFF_FORMAT_H_

#include <string>

#include "kelifc/kelifc.h"

#include "tools/kelifc/output.h"

namespace command {

/// Writes a difference as one JSON object. Rotations are in degrees.
void WriteDifferenceJson(Output& output, const KelIFC::BuildingDifference& difference);

/// A difference as tables for a person.
std::string DifferenceTable(const KelIFC::BuildingDifference& difference,
                            const KelIFC::Building& oldBuilding,
                            const KelIFC::Building& newBuilding);

}  // namespace command

#endif  // TOOLS_KELIFC_DIFF_FORMAT_H_
