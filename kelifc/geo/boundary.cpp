#include "kelifc/geo/boundary.h"

#include "kelifc/geo/collections.h"
#include "kelifc/geo/creation.h"
#include "kelifc/geo/point.h"

namespace KelIFC {

HRESULT CoGeoBRep::get_Faces(IGeoFaces** out) {
  return GiveChild<CoGeoFaces>(faces, out, [this](CoGeoFaces& made) {
    Factory<CoGeoFace> factory;
    HRESULT status = factory.Open();
    for (const BRepFace* face = boundary.faces.begin();
         SUCCEEDED(status) && face != boundary.faces.end(); ++face) {
      CoGeoFace* item = nullptr;
      status = factory.Append(made, &item);
      if (SUCCEEDED(status)) item->vertices = face->outerLoop;
    }
    return status;
  });
}

HRESULT CoGeoBRep::get_Points(IGeoPoints** out) {
  return Guard([&] {
    Mvector<Point3> positions;
    if (!points) {
      positions.reserve(boundary.vertices.size());
      for (const BRepVertex& vertex : boundary.vertices) positions.push_back(vertex.position);
    }
    return GivePoints(points, out, positions);
  });
}

HRESULT CoGeoFace::get_Numbers(IGeoNumbers** out) {
  return GiveChild<CoGeoNumbers>(numbers, out, [this](CoGeoNumbers& made) {
    for (const int index : vertices) made.Append(LONG{index} + 1);
    return S_OK;
  });
}

}  // namespace KelIFC
