#ifndef KELIFC_BUILDING_SOLID_VECTOR_MATH_H_
#define KELIFC_BUILDING_SOLID_VECTOR_MATH_H_

#include <algorithm>
#include <cmath>

#include "kelifc/building/building.h"
#include "kelifc/building/mesh.h"
#include "kelifc/geometry/point.h"

namespace KelIFC::building {

// Arithmetic of points and vectors that only bodies need.

/// Points closer than this are one point, in metres.
constexpr double kWeldDistance = 1e-7;

/// The largest coordinate of a body, in metres. Beyond it products of coordinates lose all digits
/// that matter.
constexpr double kLargestCoordinate = 1e9;

constexpr Vector3 ToVector(const Point3& p) { return {p.x, p.y, p.z}; }
constexpr Point3 ToPoint(const Vector3& v) { return {v.x, v.y, v.z}; }

/// The displacement from the end of one vector to that of another.
constexpr Vector3 FromTo(const Vector3& a, const Vector3& b) {
  return {b.x - a.x, b.y - a.y, b.z - a.z};
}

/// The point at a fraction of the way from a to b.
constexpr Point3 Between(const Point3& a, const Point3& b, double fraction) {
  return a + (b - a) * fraction;
}
constexpr Point2 Between(const Point2& a, const Point2& b, double fraction) {
  return a + (b - a) * fraction;
}

/// True if all coordinates are numbers of a size that a body may have.
inline bool IsUsable(const Point3& p) {
  return std::abs(p.x) <= kLargestCoordinate && std::abs(p.y) <= kLargestCoordinate &&
         std::abs(p.z) <= kLargestCoordinate;
}
inline bool IsUsable(const Point2& p) {
  return std::abs(p.x) <= kLargestCoordinate && std::abs(p.y) <= kLargestCoordinate;
}
inline bool IsUsable(const Vector3& v) { return IsUsable(ToPoint(v)); }

/// The vector with length 1; zero if its length is zero or not finite.
inline Vector3 Unit(const Vector3& v) {
  const double largest = std::max({std::abs(v.x), std::abs(v.y), std::abs(v.z)});
  if (!(largest > 0.0) || !std::isfinite(largest)) return {};
  const Vector3 scaled = v / largest;
  return scaled / Length(scaled);
}

/// Some unit vector that is square to a unit vector. It does not jump for vectors that are close to
/// an axis.
inline Vector3 SquareTo(const Vector3& unit) {
  const double x = std::abs(unit.x);
  const double y = std::abs(unit.y);
  const double z = std::abs(unit.z);
  if (x <= y && x <= z) return Unit(Cross(unit, Vector3(1.0, 0.0, 0.0)));
  if (y <= z) return Unit(Cross(unit, Vector3(0.0, 1.0, 0.0)));
  return Unit(Cross(unit, Vector3(0.0, 0.0, 1.0)));
}

/// Twice the signed area of a triangle; positive if a, b, c are counter-clockwise.
constexpr double Turn(const Point2& a, const Point2& b, const Point2& c) {
  return Cross(b - a, c - a);
}

inline void Extend(BuildingBox& box, const Point3& p) {
  box.min = {std::min(box.min.x, p.x), std::min(box.min.y, p.y), std::min(box.min.z, p.z)};
  box.max = {std::max(box.max.x, p.x), std::max(box.max.y, p.y), std::max(box.max.z, p.z)};
}
inline void Extend(BuildingBox& box, const BuildingBox& other) {
  if (other.IsEmpty()) return;
  Extend(box, other.min);
  Extend(box, other.max);
}

/// True if two boxes come closer than `distance` along each axis.
inline bool AreNear(const BuildingBox& a, const BuildingBox& b, double distance) {
  return a.min.x <= b.max.x + distance && b.min.x <= a.max.x + distance &&
         a.min.y <= b.max.y + distance && b.min.y <= a.max.y + distance &&
         a.min.z <= b.max.z + distance && b.min.z <= a.max.z + distance;
}

/// The length of the diagonal; 0 for an empty box.
inline double SizeOf(const BuildingBox& box) {
  return box.IsEmpty() ? 0.0 : Length(box.max - box.min);
}
inline Point3 CentreOf(const BuildingBox& box) {
  return box.IsEmpty() ? Point3() : Between(box.min, box.max, 0.5);
}

/// Maps points of a plane to two coordinates. Seen against the normal it keeps orientation.
struct Projection {
  Point3 origin;
  Vector3 x;
  Vector3 y;

  Projection(const Point3& planeOrigin, const Vector3& unitNormal)
      : origin(planeOrigin), x(SquareTo(unitNormal)), y(Cross(unitNormal, x)) {}

  Point2 operator()(const Point3& p) const {
    const Vector3 v = p - origin;
    return {Dot(v, x), Dot(v, y)};
  }
};

/// Twice the vector of the area of a loop: its direction is the normal.
inline Vector3 AreaVectorOf(const Mesh& mesh, const Mesh::Loop& loop) {
  Vector3 sum;
  if (loop.size() < 3) return sum;
  const Point3 origin = mesh.points[loop[0]];
  for (std::size_t i = 1; i + 1 < loop.size(); ++i) {
    sum = sum + Cross(mesh.points[loop[i]] - origin, mesh.points[loop[i + 1]] - origin);
  }
  return sum;
}

/// Twice the vector of the area of a face without its holes.
inline Vector3 AreaVectorOf(const Mesh& mesh, std::size_t face) {
  Vector3 sum;
  for (std::size_t i = 0; i < mesh.LoopCount(face); ++i) {
    sum = sum + AreaVectorOf(mesh, mesh.LoopOf(face, i));
  }
  return sum;
}

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_SOLID_VECTOR_MATH_H_
