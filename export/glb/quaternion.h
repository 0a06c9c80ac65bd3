#ifndef EXPORT_GLB_QUATERNION_H_
#define EXPORT_GLB_QUATERNION_H_

#include "kelifc/geometry/point.h"

namespace KelIFC::exporting {

/// A rotation as a unit quaternion.
struct Quaternion {
  double x = 0.0;
  double y = 0.0;
  double z = 0.0;
  double w = 1.0;
};

/// The rotation that maps the axes of the coordinates to three unit vectors, which are square to
/// each other and right-handed.
Quaternion QuaternionOf(const Vector3& x, const Vector3& y, const Vector3& z);

}  // namespace KelIFC::exporting

#endif  // EXPORT_GLB_QUATERNION_H_
