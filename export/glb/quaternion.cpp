#include "export/glb/quaternion.h"

#include <algorithm>
#include <cmath>

namespace KelIFC::exporting {

Quaternion QuaternionOf(const Vector3& x, const Vector3& y, const Vector3& z) {
  // The squares of the four parts, times 4. The largest one is at least 1, so it can divide.
  const double xx = 1.0 + x.x - y.y - z.z;
  const double yy = 1.0 - x.x + y.y - z.z;
  const double zz = 1.0 - x.x - y.y + z.z;
  const double ww = 1.0 + x.x + y.y + z.z;
  const double largest = std::max({xx, yy, zz, ww});
  Quaternion turn;
  if (largest == ww) {
    turn = {y.z - z.y, z.x - x.z, x.y - y.x, ww};
  } else if (largest == xx) {
    turn = {xx, x.y + y.x, z.x + x.z, y.z - z.y};
  } else if (largest == yy) {
    turn = {x.y + y.x, yy, y.z + z.y, z.x - x.z};
  } else {
    turn = {z.x + x.z, y.z + z.y, zz, x.y - y.x};
  }
  const double length =
      std::sqrt(turn.x * turn.x + turn.y * turn.y + turn.z * turn.z + turn.w * turn.w);
  return {turn.x / length, turn.y / length, turn.z / length, turn.w / length};
}

}  // namespace KelIFC::exporting
