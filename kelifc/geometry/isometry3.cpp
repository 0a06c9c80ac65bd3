#include "kelifc/geometry/isometry3.h"

namespace KelIFC {

void Isometry3::Set(const Point3& origin, const Point3& onX, const Point3& inXY) {
  isFrame = 0;
  xAxis = AxisX;
  yAxis = AxisY;
  zAxis = AxisZ;
  translation = origin;
  Vector3 x = onX - origin;
  if (tolerance > Length(x)) return;
  Normalise(x);
  Vector3 z = Cross(x, inXY - origin);
  if (tolerance > Length(z)) return;
  Normalise(z);
  xAxis = x;
  yAxis = Cross(z, x);
  zAxis = z;
  isFrame = 1;
}

}  // namespace KelIFC
