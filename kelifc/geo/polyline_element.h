#ifndef KELIFC_GEO_POLYLINE_ELEMENT_H_
#define KELIFC_GEO_POLYLINE_ELEMENT_H_

#include "kelifc/geo/geo_element.h"
#include "kelifc/geo/point.h"

namespace KelIFC {

/// An element with points, in metres and world coordinates.
template <class Base>
class PolylineElement : public GeoElement<Base> {
 public:
  /// Stores the collection of points. It is copied from `points` at the first call. What a host
  /// changes in it stays there.
  HRESULT get_Points(IGeoPoints** out) override { return GivePoints(pointObjects, out, points); }

  Mvector<Point3> points;

 protected:
  ~PolylineElement() override = default;

 private:
  ComPtr<IGeoPoints> pointObjects;
};

/// An element with points whose last point is never connected to the first.
template <class Base>
class OpenElement : public PolylineElement<Base> {
 public:
  HRESULT get_Closed(VARIANT_BOOL* out) override { return GetField(VARIANT_FALSE, out); }

 protected:
  ~OpenElement() override = default;
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_POLYLINE_ELEMENT_H_
