#include "kelifc/geo/point.h"

#include "kelifc/geo/collections.h"
#include "kelifc/geo/creation.h"

namespace KelIFC {

HRESULT GivePoints(ComPtr<IGeoPoints>& child, IGeoPoints** out, const Mvector<Point3>& points) {
  return GiveChild<CoGeoPoints>(child, out, [&](CoGeoPoints& made) {
    Factory<CoGeoPoint> factory;
    HRESULT status = factory.Open();
    for (const Point3* point = points.begin(); SUCCEEDED(status) && point != points.end();
         ++point) {
      CoGeoPoint* item = nullptr;
      status = factory.Append(made, &item);
      if (SUCCEEDED(status)) item->location = *point;
    }
    return status;
  });
}

HRESULT GivePoint(ComPtr<IGeoPoint>& child, IGeoPoint** out, const Point3& location) {
  return GiveChild<CoGeoPoint>(child, out, [&](CoGeoPoint& made) {
    made.location = location;
    return S_OK;
  });
}

}  // namespace KelIFC
