#ifndef KELIFC_GEOMETRY_POINT_H_
#define KELIFC_GEOMETRY_POINT_H_

#include <cmath>

namespace KelIFC {

// Points and displacements, in the plane and in space, with their arithmetic. A new one is zero. No
// operation checks its arguments: a coordinate that is not finite makes the result not finite.

/// A displacement in the plane.
struct Vector2 {
  double x = 0.0;
  double y = 0.0;

  constexpr Vector2() = default;
  constexpr Vector2(double vx, double vy) : x(vx), y(vy) {}
};

/// A point in the plane.
struct Point2 {
  double x = 0.0;
  double y = 0.0;

  constexpr Point2() = default;
  constexpr Point2(double px, double py) : x(px), y(py) {}
};

/// A displacement in space.
struct Vector3 {
  double x = 0.0;
  double y = 0.0;
  double z = 0.0;

  constexpr Vector3() = default;
  constexpr Vector3(double vx, double vy, double vz) : x(vx), y(vy), z(vz) {}
};

/// A point in space.
struct Point3 {
  double x = 0.0;
  double y = 0.0;
  double z = 0.0;

  constexpr Point3() = default;
  constexpr Point3(double px, double py, double pz) : x(px), y(py), z(pz) {}
};

constexpr Vector2 operator-(const Point2& a, const Point2& b) { return {a.x - b.x, a.y - b.y}; }
constexpr Point2 operator+(const Point2& p, const Vector2& v) { return {p.x + v.x, p.y + v.y}; }
constexpr Vector2 operator*(const Vector2& v, double factor) {
  return {v.x * factor, v.y * factor};
}
constexpr double Dot(const Vector2& a, const Vector2& b) { return a.x * b.x + a.y * b.y; }
constexpr double Cross(const Vector2& a, const Vector2& b) { return a.x * b.y - a.y * b.x; }
inline double Length(const Vector2& v) { return std::sqrt(Dot(v, v)); }
inline double Distance(const Point2& a, const Point2& b) { return Length(b - a); }

constexpr Vector3 operator-(const Point3& a, const Point3& b) {
  return {a.x - b.x, a.y - b.y, a.z - b.z};
}
constexpr Point3 operator+(const Point3& p, const Vector3& v) {
  return {p.x + v.x, p.y + v.y, p.z + v.z};
}
constexpr Point3& operator+=(Point3& p, const Vector3& v) { return p = p + v; }
constexpr Vector3 operator*(const Vector3& v, double factor) {
  return {v.x * factor, v.y * factor, v.z * factor};
}
constexpr Vector3 operator*(double factor, const Vector3& v) { return v * factor; }
constexpr Vector3& operator*=(Vector3& v, double factor) { return v = v * factor; }
constexpr Vector3 operator/(const Vector3& v, double divisor) {
  return {v.x / divisor, v.y / divisor, v.z / divisor};
}
constexpr Vector3 operator+(const Vector3& a, const Vector3& b) {
  return {a.x + b.x, a.y + b.y, a.z + b.z};
}
constexpr Vector3 operator-(const Vector3& v) { return {-v.x, -v.y, -v.z}; }
constexpr double Dot(const Vector3& a, const Vector3& b) {
  return a.x * b.x + a.y * b.y + a.z * b.z;
}

/// Right-handed: Cross of x and y is z.
constexpr Vector3 Cross(const Vector3& a, const Vector3& b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline double Length(const Vector3& v) { return std::sqrt(Dot(v, v)); }

/// Scales the vector to length 1. A vector of exactly zero length is left unchanged.
inline void Normalise(Vector2& v) {
  const double length = Length(v);
  if (length != 0.0) v = {v.x / length, v.y / length};
}
inline void Normalise(Vector3& v) {
  const double length = Length(v);
  if (length != 0.0) v = v / length;
}

/// Returns the angle between two directions, in radians from 0 to pi; 0 if one of them is zero.
inline double Angle(const Vector3& a, const Vector3& b) {
  return std::atan2(Length(Cross(a, b)), Dot(a, b));
}

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_POINT_H_
