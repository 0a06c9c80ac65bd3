#ifndef KELIFC_IMPORT_SHAPE_READ_SHELL_H_
#define KELIFC_IMPORT_SHAPE_READ_SHELL_H_

#include "kelifc/geometry/brep.h"

namespace KelIFC {

/// Returns the faces of a shell as a boundary, in metres and in the coordinates of the solid. An
/// IfcFaceSurface is added twice, the second time turned over. `scale` is the factor from the
/// length unit of the file to metres.
template <class Release>
BRep CaptureShell(const typename Release::IfcConnectedFaceSet& shell, double scale);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_SHAPE_READ_SHELL_H_
