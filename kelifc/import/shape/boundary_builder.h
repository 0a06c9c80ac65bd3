#ifndef KELIFC_IMPORT_SHAPE_BOUNDARY_BUILDER_H_
#define KELIFC_IMPORT_SHAPE_BOUNDARY_BUILDER_H_

#include <cstddef>

#include "kelifc/core/mvector.h"
#include "kelifc/geometry/brep.h"
#include "kelifc/geometry/point.h"

namespace KelIFC {

/// Appends faces to a boundary, one bound after the other.
///
/// Each bound adds vertices of its own, which all have the normal of its loop. The normal is zero
/// if the loop has none, for example because its points are on one line. A reversed bound adds its
/// vertices in the order of the loop and lists their indices backwards. If a face has several outer
/// bounds, the last one counts. A face without bounds is not added.
class BoundaryBuilder {
 public:
  /// The boundary must outlive the builder. `faces` is the expected number of faces; memory for
  /// them and for their vertices is reserved. Most faces have four vertices.
  BoundaryBuilder(BRep& boundary, std::size_t faces) : boundary(boundary) {
    constexpr std::size_t kUsualVertices = 4;
    boundary.faces.reserve(boundary.faces.size() + faces);
    boundary.vertices.reserve(boundary.vertices.size() + kUsualVertices * faces);
  }

  /// Begins the next face.
  void BeginFace() { faceIndex = boundary.faces.size(); }

  /// Adds a bound to the face at hand. The loop is in metres and does not repeat its first point.
  /// If the face is turned over, the loop is reversed in place and its normal is negated.
  void AddBound(Mvector<Point3>& loop, bool isOuter, bool isReversed, bool isTurnedOver);

 private:
  void AddVertices(const Mvector<Point3>& loop, const Vector3& normal);

  BRep& boundary;
  Mvector<Point2> plane;  // buffer for the points of a loop, projected into a plane
  std::size_t faceIndex = 0;
};

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_SHAPE_BOUNDARY_BUILDER_H_
