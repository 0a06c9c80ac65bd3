#include "kelifc/geometry/segment2.h"

#include <algorithm>
#include <cmath>

#include "kelifc/geometry/triangle.h"

namespace KelIFC {

namespace {

constexpr int kApart = 0;
constexpr int kCross = 1;
constexpr int kSharedEnd = 2;
constexpr int kTouch = 3;

bool IsBetween(double value, double a, double b, double tolerance) {
  return value >= std::min(a, b) - tolerance && value <= std::max(a, b) + tolerance;
}

/// Returns true if an end of one segment is on the line of the other.
bool HasEndOnLine(const Segment2& s, const Segment2& t, double tolerance) {
  return IsDegenerateTriangle(s.first, s.second, t.first, tolerance) ||
         IsDegenerateTriangle(s.first, s.second, t.second, tolerance) ||
         IsDegenerateTriangle(t.first, t.second, s.first, tolerance) ||
         IsDegenerateTriangle(t.first, t.second, s.second, tolerance);
}

/// The line of a segment: a * x + b * y = c.
struct Equation {
  double a;
  double b;
  double c;

  explicit Equation(const Segment2& s)
      : a(s.second.y - s.first.y), b(s.first.x - s.second.x), c(a * s.first.x + b * s.first.y) {}
};

/// Classifies parallel segments, at least one end of which is on the line of the other. The last
/// end that is in the box of the other segment becomes the point.
SegmentContact ClassifyOverlap(const Segment2& first, const Segment2& second) {
  SegmentContact contact;
  const auto testEnd = [&contact](const Segment2& segment, const Point2& end) {
    if (!segment.HasInBox(end)) return;
    contact = {kTouch, end};
  };
  testEnd(first, second.first);
  testEnd(first, second.second);
  testEnd(second, first.first);
  testEnd(second, first.second);
  return contact;
}

}  // namespace

bool AreCoincident(const Point2& a, const Point2& b, double tolerance) {
  return std::abs(a.x - b.x) <= tolerance && std::abs(a.y - b.y) <= tolerance;
}

bool Segment2::HasPoint(const Point2& point) const {
  const double length = GetLength();
  if (tolerance > length) return false;
  const double distance = SignedTwiceArea(first, second, point) / length;
  const double beyond = Dot(point - first, point - second) / length;
  return tolerance > std::abs(distance) && tolerance > beyond;
}

bool Segment2::HasInBox(const Point2& point) const {
  return IsBetween(point.x, first.x, second.x, tolerance) &&
         IsBetween(point.y, first.y, second.y, tolerance);
}

int Segment2::OrientationOf(const Point2& point) const {
  return TriangleOrientation(first, second, point, tolerance);
}

SegmentContact Classify(const Segment2& first, const Segment2& other) {
  const double tolerance = first.tolerance;
  const Segment2 second(other.first, other.second, tolerance);
  if (AreCoincident(first.first, first.second, tolerance)) return {kCross, first.first};
  if (AreCoincident(second.first, second.second, tolerance)) return {kCross, second.first};
  for (const Point2* end : {&first.first, &first.second}) {
    if (AreCoincident(*end, second.first, tolerance) ||
        AreCoincident(*end, second.second, tolerance)) {
      return {kSharedEnd, *end};
    }
  }
  const int code = HasEndOnLine(first, second, tolerance) ? kTouch : kCross;
  const Equation s(first);
  const Equation t(second);
  const double determinant = s.a * t.b - t.a * s.b;
  if (std::abs(determinant) < tolerance) {
    return code == kCross ? SegmentContact() : ClassifyOverlap(first, second);
  }
  const Point2 meeting((t.b * s.c - s.b * t.c) / determinant,
                       (s.a * t.c - t.a * s.c) / determinant);
  const bool isMet = first.mode != 0 || (first.HasInBox(meeting) && second.HasInBox(meeting));
  return {isMet ? code : kApart, meeting};
}

}  // namespace KelIFC
