#ifndef KELIFC_GEOMETRY_SEGMENT2_H_
#define KELIFC_GEOMETRY_SEGMENT2_H_

#include <cstdint>

#include "kelifc/geometry/point.h"

namespace KelIFC {

/// True if both coordinates differ by no more than the tolerance.
bool AreCoincident(const Point2& a, const Point2& b, double tolerance);

/// A view of two points as the ends of a segment; it must not outlive them.
struct Segment2 {
  const Point2& first;
  const Point2& second;
  std::int16_t mode = 0;  ///< another value makes Classify look at the whole lines
  double tolerance;

  Segment2(const Point2& first, const Point2& second, double tolerance)
      : first(first), second(second), tolerance(tolerance) {}

  double GetLength() const { return Distance(first, second); }

  /// True for a point nearer to the segment than the tolerance. False for a segment that is shorter
  /// than the tolerance, and always for a tolerance of 0.
  bool HasPoint(const Point2& point) const;

  /// True for a point in the box of the ends, or beyond it by no more than the tolerance.
  bool HasInBox(const Point2& point) const;

  /// The orientation of the ends and a point, as TriangleOrientation tells it.
  int OrientationOf(const Point2& point) const;
};

/// How two segments lie to each other, and where they meet.
struct SegmentContact {
  /// 0 apart; 1 they cross, or one of them is but a point; 2 an end of the first is an end of the
  /// second; 3 they touch, or lie on one another.
  int code = 0;
  Point2 point;
};

/// Uses the tolerance of the first segment for everything.
SegmentContact Classify(const Segment2& first, const Segment2& second);

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_SEGMENT2_H_
