#ifndef KELIFC_IMPORT_READ_SHELL_H_
#define KELIFC_IMPORT_READ_SHELL_H_

#include "kelifc/geometry/brep.h"
#include "kelifc/geometry/isometry3.h"

namespace KelIFC {

/// Appends the faces of a shell to a boundary, a face on a surface twice: the second time turned
/// over. `outer` takes its points to the coordinates of the boundary; `scale` is the factor from
/// lengths of the file to metres.
template <class Release>
void CaptureShell(const typename Release::IfcConnectedFaceSet& shell, BRep& boundary,
                  const Isometry3& outer, double scale);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_READ_SHELL_H_
