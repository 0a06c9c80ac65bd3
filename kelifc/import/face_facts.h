#ifndef KELIFC_IMPORT_FACE_FACTS_H_
#define KELIFC_IMPORT_FACE_FACTS_H_

#include <vector>

#include "kelifc/core/mvector.h"
#include "kelifc/geometry/brep.h"
#include "kelifc/geometry/isometry3.h"
#include "kelifc/geometry/point.h"

namespace KelIFC {

/// A loop that bounds a face, in metres. Nothing repeats its first point.
struct BoundFacts {
  bool isOuter = false;
  bool isReversed = false;
  Mvector<Point3> points;
};

/// A face by its bounds, those without a loop left out.
struct FaceFacts {
  bool isSurface = false;
  std::vector<BoundFacts> bounds;
};

/// Appends a face to a boundary, a face on a surface twice: the second time turned over, whatever
/// the file says of its sense. `frame` takes the points to the coordinates of the boundary.
///
/// Each bound brings vertices of its own, all with the normal of its loop, which is zero for a loop
/// without one. A reversed bound keeps the order of its vertices; its indices run backwards. Of
/// several outer bounds the last one counts. A face without bounds adds nothing.
void CaptureFace(FaceFacts face, const Isometry3& frame, BRep& boundary);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_FACE_FACTS_H_
