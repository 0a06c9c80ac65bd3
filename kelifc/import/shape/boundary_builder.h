#ifndef KELIFC_IMPORT_SHAPE_BOUNDARY_BUILDER_H_
#define KELIFC_IMPORT_SHAPE_BOUNDARY_BUILDER_H_

#include <cstddef>

#include "kelifc/core/mvector.h"
#include "kelifc/geometry/brep.h"
#include "kelifc/geometry/point.h"

namespace KelIFC {

/// Appends faces to a boundary, bound by bound.
///
/// Each bound brings vertices of its own, all with the normal of its loop, which is zero for a loop
/// without one. A reversed bound keeps the order of its vertices; its indices run backwards. Of
/// several outer bounds of a face the last one counts. A face without bounds adds nothing.
class BoundaryBuilder {
 public:
  /// The boundary must outlive the builder; `faces` is how many are expected.
  BoundaryBuilder(BRep& boundary, std::size_t faces) : boundary(boundary) {
    boundary.faces.reserve(boundary.faces.size() + faces);
  }

  /// Begins the next face.
  void BeginFace() { faceIndex = boundary.faces.size(); }

  /// Adds a loop, in metres, closed without repeating its first point. One of a face that is turned
  /// over is reversed in place.
  void AddBound(Mvector<Point3>& loop, bool isOuter, bool isReversed, bool isTurnedOver);

 private:
  void AddVertices(const Mvector<Point3>& loop, const Vector3& normal);

  BRep& boundary;
  Mvector<Point2> plane;  // of the loop at hand
  std::size_t faceIndex = 0;
};

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_SHAPE_BOUNDARY_BUILDER_H_
