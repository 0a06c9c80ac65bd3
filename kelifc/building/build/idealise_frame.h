#ifndef KELIFC_BUILDING_BUILD_IDEALISE_FRAME_H_
#define KELIFC_BUILDING_BUILD_IDEALISE_FRAME_H_

#include <algorithm>
#include <cmath>

#include "kelifc/building/solid/slice.h"
#include "kelifc/geometry/point.h"

namespace KelIFC::building::idealising {

// Small helpers of the idealisation for directions, planes and coordinates.

constexpr Vector3 operator-(const Vector3& a, const Vector3& b) { return a + -b; }

/// The coordinate of a point along a direction.
constexpr double At(const Point3& p, const Vector3& direction) {
  return p.x * direction.x + p.y * direction.y + p.z * direction.z;
}

constexpr Vector3 FromOrigin(const Point3& p) { return {p.x, p.y, p.z}; }

/// The vector of length 1; a vector of length 0 is returned unchanged.
inline Vector3 Unit(Vector3 v) {
  Normalise(v);
  return v;
}

inline bool IsFinite(const Vector3& v) {
  return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

inline Vector3 NormalOf(const PlaneFrame& frame) { return Cross(frame.x, frame.y); }

inline Point3 Lift(const PlaneFrame& frame, const Point2& p) {
  return frame.origin + (p.x * frame.x + p.y * frame.y);
}

inline Point2 Project(const PlaneFrame& frame, const Point3& p) {
  const Vector3 v = p - frame.origin;
  return {Dot(v, frame.x), Dot(v, frame.y)};
}

/// The plane square to a unit vector, with y as near to world up as possible (world y if the vector
/// is vertical). Its normal is the vector.
inline PlaneFrame FrameAcross(const Vector3& normal, const Point3& origin) {
  const bool isVertical = std::fabs(normal.z) > 0.9998;
  const Vector3 up = isVertical ? Vector3(0.0, 1.0, 0.0) : Vector3(0.0, 0.0, 1.0);
  PlaneFrame frame;
  frame.origin = origin;
  frame.x = Unit(Cross(up, normal));
  frame.y = Cross(normal, frame.x);
  return frame;
}

/// Turns the axes of a plane counter-clockwise.
inline PlaneFrame Turned(const PlaneFrame& frame, double angle) {
  const double c = std::cos(angle);
  const double s = std::sin(angle);
  return {frame.origin, c * frame.x + s * frame.y, c * frame.y + -s * frame.x};
}

/// The extent of a coordinate. It is empty, with from greater than to, before the first value.
struct Span {
  double from = 1e300;
  double to = -1e300;

  double Length() const { return to - from; }
  double Middle() const { return (from + to) / 2; }
  void Add(double value) {
    from = std::min(from, value);
    to = std::max(to, value);
  }
};

/// The box of an outline: its spans along x and y.
struct Extent2 {
  Span x;
  Span y;

  void Add(const Point2& p) {
    x.Add(p.x);
    y.Add(p.y);
  }
};

inline Extent2 ExtentOf(const Outline& outline) {
  Extent2 extent;
  for (const Point2& p : outline) extent.Add(p);
  return extent;
}

/// The area inside an outline; positive if it is counter-clockwise.
inline double AreaOf(const Outline& outline) {
  double twice = 0.0;
  for (std::size_t i = 1; i + 1 < outline.size(); ++i) {
    twice += Cross(outline[i] - outline[0], outline[i + 1] - outline[0]);
  }
  return twice / 2;
}

inline double PerimeterOf(const Outline& outline) {
  double length = 0.0;
  for (std::size_t i = 0; i < outline.size(); ++i) {
    length += Distance(outline[i], outline[(i + 1) % outline.size()]);
  }
  return length;
}

}  // namespace KelIFC::building::idealising

#endif  // KELIFC_BUILDING_BUILD_IDEALISE_FRAME_H_
