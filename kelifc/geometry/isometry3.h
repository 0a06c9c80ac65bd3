#ifndef KELIFC_GEOMETRY_ISOMETRY3_H_
#define KELIFC_GEOMETRY_ISOMETRY3_H_

#include <cstdint>

#include "kelifc/core/mvector.h"
#include "kelifc/geometry/constants.h"
#include "kelifc/geometry/point.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

/// A rigid transform: a rotation, given by the three axes of a frame, and a translation. A new one
/// is the identity.
struct KELIFC_API Isometry3 {
  Vector3 xAxis = AxisX;  ///< the direction to which AxisX is rotated, with length 1
  Vector3 yAxis = AxisY;  ///< the direction to which AxisY is rotated, with length 1
  Vector3 zAxis = AxisZ;  ///< the direction to which AxisZ is rotated, with length 1
  Point3 translation;     ///< the point to which the origin moves

  /// 1 if the axes form a frame. 0 if only the translation is valid; the axes are then those of the
  /// identity.
  std::int16_t isFrame = 1;
  double tolerance = kDirectionTolerance;  ///< Set treats a shorter direction as zero

  Isometry3() = default;

  /// Builds the frame of three points, as Set does.
  Isometry3(const Point3& origin, const Point3& onX, const Point3& inXY) { Set(origin, onX, inXY); }

  /// Builds the frame whose origin is `origin`, whose x axis points to `onX`, and whose plane of x
  /// and y contains `inXY`. If two points coincide or all three are on one line, within the
  /// tolerance, only the translation to `origin` is set and `isFrame` becomes 0.
  void Set(const Point3& origin, const Point3& onX, const Point3& inXY);

  /// Returns the transformed point.
  Point3 Apply(const Point3& p) const {
    return Point3() + (p.x * xAxis + p.y * yAxis + p.z * zAxis) + (translation - Point3());
  }

  /// Returns the rotated displacement. The translation does not apply to it.
  Vector3 Apply(const Vector3& v) const { return v.x * xAxis + v.y * yAxis + v.z * zAxis; }

  /// Transforms the points in place.
  void Apply(Mvector<Point3>& points) const {
    for (Point3& point : points) point = Apply(point);
  }

  /// Returns the point that Apply transforms to `p`. Without a frame the result is a mere
  /// translation.
  Point3 InverseApply(const Point3& p) const {
    const Vector3 q = p - translation;
    return {Dot(q, xAxis), Dot(q, yAxis), Dot(q, zAxis)};
  }
};

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_ISOMETRY3_H_
