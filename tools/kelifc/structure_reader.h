#ifndef TOOLS_KELIFC_STRUCTURE_READER_H_
#define TOOLS_KELIFC_STRUCTURE_READER_H_

#include "kelifc/kelifc.h"

#include "tools/kelifc/structure.h"

namespace command {

/// Converts all collections of a structure, which are otherwise converted when they are read first.
/// `progress` receives the collections that are converted and their number. If it returns false,
/// KelIFC::ReadingCancelled is thrown. Throws KelIFC::StatusError if a conversion fails.
void ConvertCollections(const KelIFC::ComPtr<IGeoStructure>& structure,
                        const KelIFC::ProgressHandler& progress);

/// Reads the whole structure through its interfaces. The order of the calls fixes the order of the
/// sections: storeys, columns, beams, walls, plates, foots, and the sections last. `release` stays
/// empty, because no interface reports it. Throws KelIFC::StatusError if an operation fails.
Structure ReadStructure(const KelIFC::ComPtr<IGeoStructure>& structure);

// These functions read one item of a collection. They throw KelIFC::StatusError, too.

Storey ReadStorey(const KelIFC::ComPtr<IGeoStorey>& object);
Element ReadColumn(const KelIFC::ComPtr<IGeoColumn>& object);
Beam ReadBeam(const KelIFC::ComPtr<IGeoBeam>& object);
Wall ReadWall(const KelIFC::ComPtr<IGeoWall>& object);
Plate ReadPlate(const KelIFC::ComPtr<IGeoPlate>& object);
Foot ReadFoot(const KelIFC::ComPtr<IGeoFoot>& object);
Section ReadSection(const KelIFC::ComPtr<IGeoSection>& object);

}  // namespace command

#endif  // TOOLS_KELIFC_STRUCTURE_READER_H_
