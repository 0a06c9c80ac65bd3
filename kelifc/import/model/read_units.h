#ifndef KELIFC_IMPORT_MODEL_READ_UNITS_H_
#define KELIFC_IMPORT_MODEL_READ_UNITS_H_

#include <vector>

#include "kelifc/import/model/unit_facts.h"

namespace KelIFC {

/// Returns the units that a project assigns, in the order of the file; an empty list if the project
/// is null or assigns none. A unit of an unknown kind is in the list, but is no length unit.
template <class Release>
std::vector<UnitFacts> ReadUnits(const typename Release::IfcProject* project);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_MODEL_READ_UNITS_H_
