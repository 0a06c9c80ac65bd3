#ifndef KELIFC_GEOMETRY_SEGMENT2_H_
#define KELIFC_GEOMETRY_SEGMENT2_H_

#include <cstdint>

#include "kelifc/geometry/point.h"

namespace KelIFC {

/// Returns true if both coordinates differ by no more than the tolerance.
bool AreCoincident(const Point2& a, const Point2& b, double tolerance);

/// A view of two points as the ends of a segment. The segment refers to the points and must not
/// outlive them.
struct Segment2 {
  const Point2& first;
  const Point2& second;
  std::int16_t mode = 0;  ///< 0: Classify looks at the segments; otherwise at their lines
  double tolerance;

  Segment2(const Point2& first, const Point2& second, double tolerance)
      : first(first), second(second), tolerance(tolerance) {}

  double GetLength() const { return Distance(first, second); }

  /// Returns true for a point that is nearer to the segment than the tolerance. Returns false if
  /// the segment is shorter than the tolerance, and always if the tolerance is 0.
  bool HasPoint(const Point2& point) const;

  /// Returns true for a point in the bounding box of the ends, enlarged by the tolerance on each
  /// side.
  bool HasInBox(const Point2& point) const;

  /// Returns TriangleOrientation of the two ends and a point.
  int OrientationOf(const Point2& point) const;
};

/// The relation of two segments, and the point at which they meet.
struct SegmentContact {
  /// 0: they do not meet. 1: they cross, or the ends of one of them coincide. 2: an end of the
  /// first segment is an end of the second. 3: they touch or overlap.
  int code = 0;
  Point2 point;
};

/// Returns how two segments meet. The tolerance of the first one is used for both.
SegmentContact Classify(const Segment2& first, const Segment2& second);

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_SEGMENT2_H_
