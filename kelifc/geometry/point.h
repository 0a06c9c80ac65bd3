#ifndef KELIFC_GEOMETRY_POINT_H_
#define KELIFC_GEOMETRY_POINT_H_

#include <cmath>

namespace KelIFC {

// Points and displacements, in the plane and in space, with their arithmetic. A new one is zero. No
// operation checks its arguments: a coordinate that is not finite makes the result not finite.

/// A displacement in the plane.
struct Vector2 {
  double x = 0.0;  ///< along the x axis
  double y = 0.0;  ///< along the y axis

  constexpr Vector2() = default;
  /// The displacement with these components.
  constexpr Vector2(double vx, double vy) : x(vx), y(vy) {}
};

/// A point in the plane.
struct Point2 {
  double x = 0.0;  ///< on the x axis
  double y = 0.0;  ///< on the y axis

  constexpr Point2() = default;
  /// The point with these coordinates.
  constexpr Point2(double px, double py) : x(px), y(py) {}
};

/// A displacement in space.
struct Vector3 {
  double x = 0.0;  ///< along the x axis
  double y = 0.0;  ///< along the y axis
  double z = 0.0;  ///< along the z axis

  constexpr Vector3() = default;
  /// The displacement with these components.
  constexpr Vector3(double vx, double vy, double vz) : x(vx), y(vy), z(vz) {}
};

/// A point in space.
struct Point3 {
  double x = 0.0;  ///< on the x axis
  double y = 0.0;  ///< on the y axis
  double z = 0.0;  ///< on the z axis

  constexpr Point3() = default;
  /// The point with these coordinates.
  constexpr Point3(double px, double py, double pz) : x(px), y(py), z(pz) {}
};

// The arithmetic of the plane.

/// Returns the displacement from `b` to `a`.
constexpr Vector2 operator-(const Point2& a, const Point2& b) { return {a.x - b.x, a.y - b.y}; }
/// Returns the point moved by a displacement.
constexpr Point2 operator+(const Point2& p, const Vector2& v) { return {p.x + v.x, p.y + v.y}; }
/// Returns the displacement scaled by a factor.
constexpr Vector2 operator*(const Vector2& v, double factor) {
  return {v.x * factor, v.y * factor};
}
/// Returns the scalar product.
constexpr double Dot(const Vector2& a, const Vector2& b) { return a.x * b.x + a.y * b.y; }
/// Returns the area of the parallelogram of `a` and `b`. It is positive if the shortest turn from
/// `a` to `b` is counterclockwise.
constexpr double Cross(const Vector2& a, const Vector2& b) { return a.x * b.y - a.y * b.x; }
/// Returns the length of the displacement.
inline double Length(const Vector2& v) { return std::sqrt(Dot(v, v)); }
/// Returns the distance of two points.
inline double Distance(const Point2& a, const Point2& b) { return Length(b - a); }

// The arithmetic of space.

/// Returns the displacement from `b` to `a`.
constexpr Vector3 operator-(const Point3& a, const Point3& b) {
  return {a.x - b.x, a.y - b.y, a.z - b.z};
}
/// Returns the point moved by a displacement.
constexpr Point3 operator+(const Point3& p, const Vector3& v) {
  return {p.x + v.x, p.y + v.y, p.z + v.z};
}
/// Moves the point by a displacement.
constexpr Point3& operator+=(Point3& p, const Vector3& v) { return p = p + v; }
/// @{
/// Returns the displacement scaled by a factor.
constexpr Vector3 operator*(const Vector3& v, double factor) {
  return {v.x * factor, v.y * factor, v.z * factor};
}
constexpr Vector3 operator*(double factor, const Vector3& v) { return v * factor; }
/// @}
/// Scales the displacement by a factor.
constexpr Vector3& operator*=(Vector3& v, double factor) { return v = v * factor; }
/// Returns the displacement divided by a number. Division by 0 follows IEEE 754.
constexpr Vector3 operator/(const Vector3& v, double divisor) {
  return {v.x / divisor, v.y / divisor, v.z / divisor};
}
/// Returns the sum of two displacements.
constexpr Vector3 operator+(const Vector3& a, const Vector3& b) {
  return {a.x + b.x, a.y + b.y, a.z + b.z};
}
/// Returns the opposite displacement.
constexpr Vector3 operator-(const Vector3& v) { return {-v.x, -v.y, -v.z}; }
/// Returns the scalar product.
constexpr double Dot(const Vector3& a, const Vector3& b) {
  return a.x * b.x + a.y * b.y + a.z * b.z;
}

/// Returns the right-handed vector product: the product of the x and y axes is the z axis.
constexpr Vector3 Cross(const Vector3& a, const Vector3& b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
/// Returns the length of the displacement.
inline double Length(const Vector3& v) { return std::sqrt(Dot(v, v)); }

/// @{
/// Scales the vector to length 1. A vector of exactly zero length is left unchanged.
inline void Normalise(Vector2& v) {
  const double length = Length(v);
  if (length != 0.0) v = {v.x / length, v.y / length};
}
inline void Normalise(Vector3& v) {
  const double length = Length(v);
  if (length != 0.0) v = v / length;
}
/// @}

/// Returns the angle between two directions, in radians from 0 to pi; 0 if one of them is zero.
inline double Angle(const Vector3& a, const Vector3& b) {
  return std::atan2(Length(Cross(a, b)), Dot(a, b));
}

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_POINT_H_
