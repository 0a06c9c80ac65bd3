#ifndef KELIFC_GEO_POINT_H_
#define KELIFC_GEO_POINT_H_

#include "kelifc/core/mvector.h"
#include "kelifc/geo/class_bases.h"
#include "kelifc/geo/fields.h"
#include "kelifc/geometry/point.h"
#include "kelifc/platform/com_ptr.h"

namespace KelIFC {

/// The operations of IGeoPoint, for a class with one location. `Base` is the generated base of the
/// class.
template <class Base>
class LocatedObject : public Base {
 public:
  HRESULT get_X(double* out) override { return GetField(location.x, out); }
  HRESULT put_X(double value) override { return PutField(value, &location.x); }
  HRESULT get_Y(double* out) override { return GetField(location.y, out); }
  HRESULT put_Y(double value) override { return PutField(value, &location.y); }
  HRESULT get_Z(double* out) override { return GetField(location.z, out); }
  HRESULT put_Z(double value) override { return PutField(value, &location.z); }

  HRESULT SetXYZ(double x, double y, double z) override {
    location = Point3(x, y, z);
    return S_OK;
  }

  HRESULT GetXYZ(double* x, double* y, double* z) override {
    if (x == nullptr || y == nullptr || z == nullptr) return E_POINTER;
    *x = location.x;
    *y = location.y;
    *z = location.z;
    return S_OK;
  }

  Point3 location;  ///< in metres and world coordinates

 protected:
  ~LocatedObject() = default;
};

/// A point of an element. It is a copy, so a change of it changes nothing else.
class CoGeoPoint : public LocatedObject<CoGeoPointBase> {
 protected:
  ~CoGeoPoint() = default;
};

/// Stores the collection of points that `child` caches. At the first call it is created with a copy
/// of `points`.
HRESULT GivePoints(ComPtr<IGeoPoints>& child, IGeoPoints** out, const Mvector<Point3>& points);

/// Stores the point that `child` caches. At the first call it is created at `location`.
HRESULT GivePoint(ComPtr<IGeoPoint>& child, IGeoPoint** out, const Point3& location);

}  // namespace KelIFC

#endif  // KELIFC_GEO_POINT_H_
