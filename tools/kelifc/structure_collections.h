#ifndef TOOLS_KELIFC_STRUCTURE_COLLECTIONS_H_
#define TOOLS_KELIFC_STRUCTURE_COLLECTIONS_H_

#include "kelifc/kelifc.h"

#include "tools/kelifc/structure.h"
#include "tools/kelifc/structure_reader.h"

namespace command {

/// Calls `visit` once for each collection of a structure, in the order in which they are converted
/// and written. Its arguments are the key of the collection in JSON, the operation that returns the
/// collection, the function that reads an item, and the list of Structure that holds the items.
/// The sections are last, because they are created while elements are converted.
template <class Visit>
void VisitCollections(Visit visit) {
  visit("storeys", &IGeoStructure::get_Storeys, ReadStorey, &Structure::storeys);
  visit("columns", &IGeoStructure::get_Columns, ReadColumn, &Structure::columns);
  visit("beams", &IGeoStructure::get_Beams, ReadBeam, &Structure::beams);
  visit("walls", &IGeoStructure::get_Walls, ReadWall, &Structure::walls);
  visit("plates", &IGeoStructure::get_Plates, ReadPlate, &Structure::plates);
  visit("foots", &IGeoStructure::get_Foots, ReadFoot, &Structure::foots);
  visit("sections", &IGeoStructure::get_Sections, ReadSection, &Structure::sections);
}

}  // namespace command

#endif  // TOOLS_KELIFC_STRUCTURE_COLLECTIONS_H_
