#ifndef EXPORT_SAF_WRITE_SURFACE_H_
#define EXPORT_SAF_WRITE_SURFACE_H_

#include "kelifc/building/building.h"

#include "export/saf/saf_writer.h"

namespace KelIFC::exporting::saf {

/// Writes a row of "StructuralSurfaceMember", and a row of "StructuralSurfaceMemberOpening" for
/// each hole and opening. A curved wall along a polyline becomes a row for each of its lines; these
/// rows have the id of the element as "Parent ID". Writes nothing and returns the reason if the
/// element is no surface or does not fit.
Obstacle WriteSurface(SafWriter& writer, const BuildingElement& element);

}  // namespace KelIFC::exporting::saf

#endif  // EXPORT_SAF_WRITE_SURFACE_H_
