#ifndef KELIFC_IMPORT_SHAPE_READ_SHELL_H_
#define KELIFC_IMPORT_SHAPE_READ_SHELL_H_

#include "kelifc/geometry/brep.h"

namespace KelIFC {

/// Appends the faces of a shell to a boundary, a face on a surface twice: the second time turned
/// over. The points stay in the coordinates of the solid: the origin of a map and the placements of
/// the product act on the boundary. `scale` is the factor from lengths of the file to metres.
template <class Release>
void CaptureShell(const typename Release::IfcConnectedFaceSet& shell, BRep& boundary, double scale);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_SHAPE_READ_SHELL_H_
