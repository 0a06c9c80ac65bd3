#ifndef KELIFC_TESTS_GEOMETRY_POINTS_H_
#define KELIFC_TESTS_GEOMETRY_POINTS_H_

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <initializer_list>
#include <limits>

#include "kelifc/core/mvector.h"
#include "kelifc/geometry/point.h"

namespace KelIFC {

inline constexpr double kInfinity = std::numeric_limits<double>::infinity();
inline constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

template <class Point>
Mvector<Point> Points(std::initializer_list<Point> list) {
  Mvector<Point> points;
  for (const Point& point : list) points.push_back(point);
  return points;
}

inline Mvector<Point2> Points2(std::initializer_list<Point2> list) { return Points<Point2>(list); }
inline Mvector<Point3> Points3(std::initializer_list<Point3> list) { return Points<Point3>(list); }

/// Matches a point or a vector whose coordinates differ by 1e-12 at most.
MATCHER_P2(IsNear2, x, y, "") {
  const auto isNear = [](double a, double b) { return a == b || std::abs(a - b) < 1e-12; };
  return isNear(arg.x, x) && isNear(arg.y, y);
}

MATCHER_P3(IsNear3, x, y, z, "") {
  const auto isNear = [](double a, double b) { return a == b || std::abs(a - b) < 1e-12; };
  return isNear(arg.x, x) && isNear(arg.y, y) && isNear(arg.z, z);
}

// Prints values in messages of failed tests.
inline void PrintTo(const Point2& p, std::ostream* out) {
  *out << "(" << p.x << ", " << p.y << ")";
}
inline void PrintTo(const Vector2& v, std::ostream* out) {
  *out << "<" << v.x << ", " << v.y << ">";
}
inline void PrintTo(const Point3& p, std::ostream* out) {
  *out << "(" << p.x << ", " << p.y << ", " << p.z << ")";
}
inline void PrintTo(const Vector3& v, std::ostream* out) {
  *out << "<" << v.x << ", " << v.y << ", " << v.z << ">";
}

}  // namespace KelIFC

#endif  // KELIFC_TESTS_GEOMETRY_POINTS_H_
