#ifndef KELIFC_GEOMETRY_ROTATION2_H_
#define KELIFC_GEOMETRY_ROTATION2_H_

#include <cmath>

#include "kelifc/geometry/point.h"

namespace KelIFC {

/// A rotation in the plane. A positive angle turns counter-clockwise.
struct Rotation2 {
  double sine;
  double cosine;

  /// `angle` is in radians.
  explicit Rotation2(double angle) : sine(std::sin(angle)), cosine(std::cos(angle)) {}
};

/// Returns the argument rotated about the origin.
inline Vector2 Rotate(const Vector2& v, const Rotation2& r) {
  return {v.x * r.cosine - v.y * r.sine, v.x * r.sine + v.y * r.cosine};
}

inline Point2 Rotate(const Point2& p, const Rotation2& r) {
  return {p.x * r.cosine - p.y * r.sine, p.x * r.sine + p.y * r.cosine};
}

/// Rotates about the z axis: z is left unchanged.
inline Vector3 Rotate(const Vector3& v, const Rotation2& r) {
  return {v.x * r.cosine - v.y * r.sine, v.x * r.sine + v.y * r.cosine, v.z};
}

/// Returns the angle of a direction, in radians from -pi to pi; 0 for the zero direction. A `y` of
/// zero counts as positive even if its sign bit is set.
double DirectionAngle(double x, double y);

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_ROTATION2_H_
