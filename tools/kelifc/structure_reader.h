#ifndef TOOLS_KELIFC_STRUCTURE_READER_H_
#define TOOLS_KELIFC_STRUCTURE_READER_H_

#include "kelifc/kelifc.h"

#include "tools/kelifc/structure.h"

namespace command {

/// Reads the whole structure through its interfaces, in the order that fixes the order of its
/// sections: storeys, columns, beams, walls, plates, foots, and the sections last. The release is
/// left empty, since no interface tells it. Throws std::runtime_error if an operation fails.
Structure ReadStructure(IGeoStructure& structure);

}  // namespace command

#endif  // TOOLS_KELIFC_STRUCTURE_READER_H_
