#ifndef KELIFC_GEO_BOUNDARY_H_
#define KELIFC_GEO_BOUNDARY_H_

#include "kelifc/geo/class_bases.h"
#include "kelifc/geometry/brep.h"
#include "kelifc/platform/com_ptr.h"

namespace KelIFC {

/// The object that shows the boundary of an element to a host.
class CoGeoBRep : public CoGeoBRepBase {
 public:
  /// Stores the collection of faces, which is created at the first call. A face is shown by its
  /// outer loop; inner loops are not shown.
  HRESULT get_Faces(IGeoFaces** out) override;

  /// Stores the collection of points, which is created at the first call: the positions of the
  /// vertices in their order.
  HRESULT get_Points(IGeoPoints** out) override;

  BRep boundary;  ///< in metres and world coordinates

 protected:
  ~CoGeoBRep() = default;

 private:
  ComPtr<IGeoPoints> points;
  ComPtr<IGeoFaces> faces;
};

/// A face of a boundary.
class CoGeoFace : public CoGeoFaceBase {
 public:
  /// Stores the collection of numbers, which is created at the first call: the indices of the
  /// points in their order, from 1, as Item of the points expects them.
  HRESULT get_Numbers(IGeoNumbers** out) override;

  Mvector<int> vertices;  ///< indices of the vertices of the boundary, from 0

 protected:
  ~CoGeoFace() = default;

 private:
  ComPtr<IGeoNumbers> numbers;
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_BOUNDARY_H_
