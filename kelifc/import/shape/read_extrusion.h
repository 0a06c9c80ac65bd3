#ifndef KELIFC_IMPORT_SHAPE_READ_EXTRUSION_H_
#define KELIFC_IMPORT_SHAPE_READ_EXTRUSION_H_

#include "kelifc/import/shape/extrusion_facts.h"

namespace KelIFC {

/// An extruded solid with its profile. `scale` is the factor from lengths of the file to metres;
/// the corners of the profile are read only if they are wanted.
template <class Release>
ExtrusionFacts ReadExtrusion(const typename Release::IfcExtrudedAreaSolid& solid, double scale,
                             bool withCorners = false);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_SHAPE_READ_EXTRUSION_H_
