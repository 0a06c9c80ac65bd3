#ifndef KELIFC_BUILDING_FACTS_TRANSFORM3_H_
#define KELIFC_BUILDING_FACTS_TRANSFORM3_H_

#include "kelifc/geometry/point.h"

namespace KelIFC::building {

/// An affine map of space: the images of the three axes and of the origin. It may scale, also
/// differently along the axes, and mirror. A new one is the identity.
struct Transform3 {
  Vector3 x{1.0, 0.0, 0.0};
  Vector3 y{0.0, 1.0, 0.0};
  Vector3 z{0.0, 0.0, 1.0};
  Point3 origin;

  Point3 operator()(const Point3& p) const { return origin + (p.x * x + p.y * y + p.z * z); }
  Vector3 operator()(const Vector3& v) const { return v.x * x + v.y * y + v.z * z; }

  /// Negative if the map mirrors, 0 if it flattens space.
  double Determinant() const { return Dot(x, Cross(y, z)); }
};

/// The map that applies `inner` first.
inline Transform3 Combine(const Transform3& outer, const Transform3& inner) {
  return {outer(inner.x), outer(inner.y), outer(inner.z), outer(inner.origin)};
}

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_FACTS_TRANSFORM3_H_
