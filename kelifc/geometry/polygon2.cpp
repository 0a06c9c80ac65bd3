#include "kelifc/geometry/polygon2.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace KelIFC {

namespace {

/// The tolerance of the crossing test: the ray and the sides are compared exactly.
constexpr double kExact = 0.0;

/// The code with which Classify reports that two segments cross.
constexpr int kCross = 1;

/// The ends of each segment are on different sides of the other segment's line. An end on that line
/// counts as a side of its own, so a ray through a vertex crosses both sides that meet there.
bool Crosses(const Segment2& side, const Segment2& ray) {
  return side.OrientationOf(ray.first) != side.OrientationOf(ray.second) &&
         ray.OrientationOf(side.first) != ray.OrientationOf(side.second);
}

/// Orders all doubles: an undefined number (NaN) comes after every other number.
bool IsLower(double a, double b) {
  if (std::isnan(a) || std::isnan(b)) return !std::isnan(a) && std::isnan(b);
  return a < b;
}

/// By x, then by y.
bool IsAhead(const Point2& a, const Point2& b) {
  if (IsLower(a.x, b.x)) return true;
  return !IsLower(b.x, a.x) && IsLower(a.y, b.y);
}

Point2 Middle(const Point2& a, const Point2& b) { return {(a.x + b.x) * 0.5, (a.y + b.y) * 0.5}; }

}  // namespace

Box2 Polygon2::BoundingBox() const {
  if (points.empty()) return {};
  Box2 box = {points[0], points[0]};
  for (const Point2& point : points) {
    box.min = {std::min(box.min.x, point.x), std::min(box.min.y, point.y)};
    box.max = {std::max(box.max.x, point.x), std::max(box.max.y, point.y)};
  }
  return box;
}

// Each side contributes the area between itself and the x axis. Sides that run towards lower x
// count as positive.
double Polygon2::SignedArea() const {
  if (points.size() < 3) return 0.0;
  double sum = 0.0;
  const Point2* previous = points.end() - 1;
  for (const Point2& point : points) {
    sum += (previous->x - point.x) * (previous->y + point.y);
    previous = &point;
  }
  return 0.5 * sum;
}

// The area is divided by a length so that it can be compared with the tolerance, which is a length.
int Polygon2::Orientation() const {
  const Box2 box = BoundingBox();
  const double larger = std::max(box.max.x - box.min.x, box.max.y - box.min.y);
  if (larger == 0.0) return 0;
  const double height = SignedArea() / larger;
  if (height > tolerance) return -1;
  return height < -tolerance ? 1 : 0;
}

bool Polygon2::IsOnBoundary(const Point2& point) const {
  if (points.empty()) return false;
  const Point2* previous = points.end() - 1;
  for (const Point2& vertex : points) {
    if (Segment2(*previous, vertex, tolerance).HasPoint(point)) return true;
    if (AreCoincident(vertex, point, tolerance)) return true;
    previous = &vertex;
  }
  return false;
}

bool Polygon2::IsInside(const Point2& point, bool strict) const {
  const Box2 box = BoundingBox();
  if (point.x < box.min.x - tolerance || point.x > box.max.x + tolerance ||
      point.y < box.min.y - tolerance || point.y > box.max.y + tolerance) {
    return false;
  }
  if (IsOnBoundary(point)) return !strict;
  return HasOddCrossings(point, box);
}

// Counts how often a ray from the point crosses the sides; an odd count means that the point is
// inside. The walk starts at a vertex that is not on the ray. It passes a run of vertices on the
// ray in one step, which counts the side that enters the run. If the vertices before and after the
// run are on the same side of the ray, the outline only touches the ray, and the count is taken
// back.
//
// HasPoint is always false for the exact tolerance, so no vertex counts as one on the ray today. A
// ray that passes exactly through a vertex therefore crosses both sides that meet there. The
// results of conversions depend on this rule.
bool Polygon2::HasOddCrossings(const Point2& point, const Box2& box) const {
  // The ray is not horizontal: the outlines of building elements have many horizontal sides.
  const Point2 far(box.max.x + tolerance + 1.0, box.max.y);
  const Segment2 ray(point, far, kExact);
  const std::size_t count = points.size();
  const auto isOnRay = [&](std::size_t i) { return ray.HasPoint(points[i]); };
  std::size_t start = 0;
  while (start < count && isOnRay(start)) ++start;
  if (start == count) return false;
  int crossings = 0;
  std::size_t previous = start;
  do {
    std::size_t next = (previous + 1) % count;
    if (Crosses(Segment2(points[previous], points[next], kExact), ray)) ++crossings;
    if (isOnRay(next)) {
      while (isOnRay(next)) next = (next + 1) % count;
      if (ray.OrientationOf(points[previous]) == ray.OrientationOf(points[next])) --crossings;
    }
    previous = next;
  } while (previous != start);
  return crossings % 2 != 0;
}

// Adds the points at which sides touch the segment. Returns false if a side crosses it.
bool Polygon2::AddContacts(const Segment2& segment, Mvector<Point2>& contacts) const {
  if (points.empty()) return true;
  const Point2* previous = points.end() - 1;
  for (const Point2& vertex : points) {
    const Segment2 side(*previous, vertex, tolerance);
    previous = &vertex;
    if (AreCoincident(side.first, side.second, tolerance)) continue;
    const SegmentContact contact = Classify(side, segment);
    if (contact.code == kCross) return false;
    if (contact.code != 0) contacts.push_back(contact.point);
  }
  return true;
}

// A segment that crosses no side is cut at the points where it touches the outline. Each piece is
// then either inside or outside as a whole, so the test of its midpoint decides.
bool Polygon2::IsInside(const Segment2& segment, bool strict) const {
  if (!IsInside(segment.first, strict)) return false;
  if (AreCoincident(segment.first, segment.second, tolerance)) return !strict;
  Mvector<Point2> contacts;
  contacts.push_back(segment.first);
  if (!AddContacts(segment, contacts)) return false;
  if (!IsInside(segment.second, strict)) return false;
  contacts.push_back(segment.second);
  std::sort(contacts.begin(), contacts.end(), IsAhead);
  for (std::size_t i = 1; i < contacts.size(); ++i) {
    if (!IsInside(Middle(contacts[i - 1], contacts[i]), strict)) return false;
  }
  return true;
}

bool Polygon2::IsInside(const Polygon2& inner, bool strict) const {
  if (inner.points.empty()) return true;
  const Point2* previous = inner.points.end() - 1;
  for (const Point2& vertex : inner.points) {
    if (!IsInside(Segment2(*previous, vertex, tolerance), strict)) return false;
    previous = &vertex;
  }
  return true;
}

}  // namespace KelIFC
