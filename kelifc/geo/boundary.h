#ifndef KELIFC_GEO_BOUNDARY_H_
#define KELIFC_GEO_BOUNDARY_H_

#include "kelifc/geo/class_bases.h"
#include "kelifc/geometry/brep.h"
#include "kelifc/platform/com_ptr.h"

namespace KelIFC {

/// The boundary of an element, as a host walks it.
class CoGeoBRep : public CoGeoBRepBase {
 public:
  /// One face for each of the boundary's, by its outer loop alone.
  HRESULT get_Faces(IGeoFaces** out) override;

  /// The positions of the vertices, in their order.
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
  /// The numbers of the points, from 1, as Item of the points counts.
  HRESULT get_Numbers(IGeoNumbers** out) override;

  Mvector<int> vertices;  ///< indices of the boundary's vertices, from 0

 protected:
  ~CoGeoFace() = default;

 private:
  ComPtr<IGeoNumbers> numbers;
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_BOUNDARY_H_
