#ifndef KELIFC_IMPORT_SHAPE_READ_EXTRUSION_H_
#define KELIFC_IMPORT_SHAPE_READ_EXTRUSION_H_

#include "kelifc/import/shape/extrusion_facts.h"

namespace KelIFC {

/// Reads an extruded solid and its profile. `scale` is the factor from the length unit of the file
/// to metres. ProfileFacts::corners is filled only if `withCorners` is true.
template <class Release>
ExtrusionFacts ReadExtrusion(const typename Release::IfcExtrudedAreaSolid& solid, double scale,
                             bool withCorners = false);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_SHAPE_READ_EXTRUSION_H_
