#ifndef KELIFC_IMPORT_MODEL_READ_UNITS_H_
#define KELIFC_IMPORT_MODEL_READ_UNITS_H_

#include <vector>

#include "kelifc/import/model/unit_facts.h"

namespace KelIFC {

/// The units that a project assigns, in their order; none for a null project, or one that assigns
/// none. The kind of a converted unit is that of the SI unit it is converted to.
template <class Release>
std::vector<UnitFacts> ReadUnits(const typename Release::IfcProject* project);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_MODEL_READ_UNITS_H_
