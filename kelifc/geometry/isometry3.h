#ifndef KELIFC_GEOMETRY_ISOMETRY3_H_
#define KELIFC_GEOMETRY_ISOMETRY3_H_

#include <cstdint>

#include "kelifc/core/mvector.h"
#include "kelifc/geometry/constants.h"
#include "kelifc/geometry/point.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

/// A rigid transform: a frame and where its origin lies. A new one is the identity.
struct KELIFC_API Isometry3 {
  Vector3 xAxis = AxisX;
  Vector3 yAxis = AxisY;
  Vector3 zAxis = AxisZ;
  Point3 translation;
  std::int16_t isFrame = 1;  ///< 0 if only the translation means anything; the axes are then unit
  double tolerance = kDirectionTolerance;  ///< a length below which a direction counts as zero

  Isometry3() = default;
  Isometry3(const Point3& origin, const Point3& onX, const Point3& inXY) { Set(origin, onX, inXY); }

  /// Builds the frame of three points: the origin, a point on the x axis, and one in the plane of x
  /// and y. Points that make no frame leave a mere translation to the origin.
  void Set(const Point3& origin, const Point3& onX, const Point3& inXY);

  Point3 Apply(const Point3& p) const {
    return Point3() + (p.x * xAxis + p.y * yAxis + p.z * zAxis) + (translation - Point3());
  }

  /// A displacement is turned but not moved.
  Vector3 Apply(const Vector3& v) const { return v.x * xAxis + v.y * yAxis + v.z * zAxis; }

  /// Transforms the points in place.
  void Apply(Mvector<Point3>& points) const {
    for (Point3& point : points) point = Apply(point);
  }

  /// The point that Apply takes to `p`.
  Point3 InverseApply(const Point3& p) const {
    const Vector3 q = p - translation;
    return {Dot(q, xAxis), Dot(q, yAxis), Dot(q, zAxis)};
  }
};

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_ISOMETRY3_H_
