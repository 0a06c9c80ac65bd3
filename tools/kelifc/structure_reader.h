#ifndef TOOLS_KELIFC_STRUCTURE_READER_H_
#define TOOLS_KELIFC_STRUCTURE_READER_H_

#include "kelifc/kelifc.h"

#include "tools/kelifc/structure.h"

namespace command {

/// Reads the whole structure through its interfaces. The order of the calls fixes the order of the
/// sections: storeys, columns, beams, walls, plates, foots, and the sections last. `release` stays
/// empty, because no interface reports it. Throws KelIFC::StatusError if an operation fails.
///
/// `progress` receives the collections that are read and their number. If it returns false,
/// KelIFC::ReadingCancelled is thrown.
Structure ReadStructure(const KelIFC::ComPtr<IGeoStructure>& structure,
                        const KelIFC::ProgressHandler& progress = {});

}  // namespace command

#endif  // TOOLS_KELIFC_STRUCTURE_READER_H_
