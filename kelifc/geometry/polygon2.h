#ifndef KELIFC_GEOMETRY_POLYGON2_H_
#define KELIFC_GEOMETRY_POLYGON2_H_

#include "kelifc/core/mvector.h"
#include "kelifc/geometry/box2.h"
#include "kelifc/geometry/point.h"
#include "kelifc/geometry/segment2.h"

namespace KelIFC {

/// A view of points as a closed polygon. The last point is connected to the first, and no point is
/// repeated. The polygon refers to the points and must not outlive them. All tests use its
/// tolerance, which is a length in the unit of the points.
struct Polygon2 {
  const Mvector<Point2>& points;
  double tolerance;

  Polygon2(const Mvector<Point2>& points, double tolerance)
      : points(points), tolerance(tolerance) {}

  /// Returns the box of the points; of an empty polygon, a box at the origin.
  Box2 BoundingBox() const;

  /// Returns the area: positive if the points turn counter-clockwise, negative if clockwise, and 0
  /// for fewer than three points.
  double SignedArea() const;

  /// Returns -1 if the points turn counter-clockwise and +1 if clockwise. Returns 0 if the area
  /// divided by the longer side of the box is within the tolerance.
  int Orientation() const;

  /// Returns true for a point on a side or at a vertex.
  bool IsOnBoundary(const Point2& point) const;

  /// Returns true for a point inside the polygon. The boundary counts as inside unless the test is
  /// strict.
  bool IsInside(const Point2& point, bool strict) const;

  /// Returns true if the whole segment is inside. A segment whose ends coincide is never strictly
  /// inside.
  bool IsInside(const Segment2& segment, bool strict) const;

  /// Returns true if every side of another polygon is inside. An empty polygon is inside every
  /// polygon.
  bool IsInside(const Polygon2& inner, bool strict) const;

 private:
  bool HasOddCrossings(const Point2& point, const Box2& box) const;
  bool AddContacts(const Segment2& segment, Mvector<Point2>& contacts) const;
};

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_POLYGON2_H_
