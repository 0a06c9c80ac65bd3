#include "kelifc/geometry/triangle.h"

#include <algorithm>
#include <cmath>

namespace KelIFC {

namespace {

/// `ab`, `bc` and `ca` are the lengths of the sides.
bool IsDegenerate(double ab, double bc, double ca, double twiceArea, double tolerance) {
  if (ab < tolerance || bc < tolerance || ca < tolerance) return true;
  return twiceArea / std::max({ab, bc, ca}) < tolerance;
}

}  // namespace

bool IsDegenerateTriangle(const Point2& a, const Point2& b, const Point2& c, double tolerance) {
  return IsDegenerate(Distance(a, b), Distance(b, c), Distance(c, a),
                      std::abs(SignedTwiceArea(a, b, c)), tolerance);
}

bool IsDegenerateTriangle(const Point3& a, const Point3& b, const Point3& c, double tolerance) {
  return IsDegenerate(Length(b - a), Length(c - b), Length(a - c), Length(Cross(b - a, c - a)),
                      tolerance);
}

double SignedTwiceArea(const Point2& a, const Point2& b, const Point2& c) {
  return Cross(b - a, c - a);
}

int TriangleOrientation(const Point2& a, const Point2& b, const Point2& c, double tolerance) {
  const double longest = std::max({Distance(a, b), Distance(b, c), Distance(c, a)});
  if (longest < tolerance) return 0;
  const double height = SignedTwiceArea(a, b, c) / longest;
  if (height > tolerance) return -1;
  return height < -tolerance ? 1 : 0;
}

}  // namespace KelIFC
