#ifndef KELIFC_GEOMETRY_TRIANGLE_H_
#define KELIFC_GEOMETRY_TRIANGLE_H_

#include "kelifc/geometry/point.h"

namespace KelIFC {

// Tests of the triangle of three points. The tolerance is a length in the unit of the points.

/// Returns true if a side, or the height over the longest side, is shorter than the tolerance.
bool IsDegenerateTriangle(const Point2& a, const Point2& b, const Point2& c, double tolerance);
bool IsDegenerateTriangle(const Point3& a, const Point3& b, const Point3& c, double tolerance);

/// Returns twice the area of a triangle: positive if the points turn counter-clockwise.
double SignedTwiceArea(const Point2& a, const Point2& b, const Point2& c);

/// Returns -1 if the points turn counter-clockwise and +1 if clockwise. Returns 0 if the height
/// over the longest side, or that side itself, is within the tolerance.
int TriangleOrientation(const Point2& a, const Point2& b, const Point2& c, double tolerance);

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_TRIANGLE_H_
