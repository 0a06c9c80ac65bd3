#ifndef KELIFC_GEOMETRY_TRIANGLE_H_
#define KELIFC_GEOMETRY_TRIANGLE_H_

#include "kelifc/geometry/point.h"

namespace KelIFC {

// Tests of three points against a tolerance, which is a length.

/// True if a side, or the height over the longest side, is shorter than the tolerance.
bool IsDegenerateTriangle(const Point2& a, const Point2& b, const Point2& c, double tolerance);
bool IsDegenerateTriangle(const Point3& a, const Point3& b, const Point3& c, double tolerance);

/// Twice the area, positive if the points turn counter-clockwise.
double SignedTwiceArea(const Point2& a, const Point2& b, const Point2& c);

/// -1 if the points turn counter-clockwise, +1 if clockwise, 0 if they lie on a line within the
/// tolerance.
int TriangleOrientation(const Point2& a, const Point2& b, const Point2& c, double tolerance);

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_TRIANGLE_H_
