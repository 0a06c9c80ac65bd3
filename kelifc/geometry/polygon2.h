#ifndef KELIFC_GEOMETRY_POLYGON2_H_
#define KELIFC_GEOMETRY_POLYGON2_H_

#include "kelifc/core/mvector.h"
#include "kelifc/geometry/box2.h"
#include "kelifc/geometry/point.h"
#include "kelifc/geometry/segment2.h"

namespace KelIFC {

/// A view of points as a polygon: the last one is joined to the first, and none is repeated. It
/// must not outlive the points. All tests are within the tolerance, a length.
struct Polygon2 {
  const Mvector<Point2>& points;
  double tolerance;

  Polygon2(const Mvector<Point2>& points, double tolerance)
      : points(points), tolerance(tolerance) {}

  /// Of no points: the origin twice.
  Box2 BoundingBox() const;

  /// Positive if the polygon turns counter-clockwise; 0 for fewer than three points.
  double SignedArea() const;

  /// -1 if the polygon turns counter-clockwise, +1 if clockwise, 0 if it has no area to speak of.
  int Orientation() const;

  /// On a side or a vertex.
  bool IsOnBoundary(const Point2& point) const;

  /// The boundary is inside unless the test is strict.
  bool IsInside(const Point2& point, bool strict) const;

  /// Whether the segment is inside over its whole length. A segment that is but a point is never
  /// strictly inside.
  bool IsInside(const Segment2& segment, bool strict) const;

  /// Whether all sides of another polygon are inside; so are those of one without points.
  bool IsInside(const Polygon2& inner, bool strict) const;

 private:
  bool HasOddCrossings(const Point2& point, const Box2& box) const;
  bool AddContacts(const Segment2& segment, Mvector<Point2>& contacts) const;
};

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_POLYGON2_H_
