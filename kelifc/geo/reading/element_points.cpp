#include "kelifc/geo/reading/element_points.h"

#include <algorithm>
#include <cstddef>
#include <limits>

#include "kelifc/building/profile/plane_arc.h"

namespace KelIFC {

namespace {

/// The most chords of one arc.
constexpr std::size_t kMostChords = 4096;

/// Appends the points between the ends of an arc.
void AppendArc(const Point3& from, const Point3& through, const Point3& to,
               Mvector<Point3>& points) {
  Vector3 along = to - from;
  Vector3 across = Cross(Cross(along, through - from), along);
  Normalise(along);
  Normalise(across);
  const auto flat = [&](const Point3& point) {
    return Point2(Dot(point - from, along), Dot(point - from, across));
  };
  const auto arc = building::ArcThrough(flat(from), flat(through), flat(to));
  if (!arc) return;
  const std::size_t count =
      building::ChordCount(arc->radius, arc->sweep, building::kChordError, kMostChords);
  for (std::size_t i = 1; i < count; ++i) {
    const Point2 at = arc->At(static_cast<double>(i) / static_cast<double>(count));
    points.push_back(from + along * at.x + across * at.y);
  }
}

/// The horizontal direction in the plane of a wall, with the normal to the left.
Vector3 HorizontalIn(const Vector3& normal) {
  constexpr double kHorizontalPlane = 1e-9;  // the sine of its slope
  Vector3 along = Cross(normal, Vector3(0.0, 0.0, 1.0));
  if (Length(along) < kHorizontalPlane) return {1.0, 0.0, 0.0};
  Normalise(along);
  return along;
}

/// The smallest and the largest place of points along a direction.
struct Range {
  double low = std::numeric_limits<double>::infinity();
  double high = -std::numeric_limits<double>::infinity();

  void Add(double value) {
    low = std::min(low, value);
    high = std::max(high, value);
  }
};

}  // namespace

Mvector<Point3> PointsOf(const std::vector<Point3>& points) {
  Mvector<Point3> copy;
  copy.reserve(points.size());
  for (const Point3& point : points) copy.push_back(point);
  return copy;
}

Mvector<Point3> PointsOf(const Outline& outline) {
  Mvector<Point3> points;
  points.reserve(outline.size());
  for (const Point2& point : outline) points.push_back({point.x, point.y, 0.0});
  return points;
}

Mvector<Point3> ChordedOutline(const SurfaceRegion& surface) {
  Mvector<Point3> points;
  const std::vector<Point3>& outline = surface.outline;
  auto arc = surface.arcs.begin();
  for (std::size_t i = 0; i < outline.size(); ++i) {
    points.push_back(outline[i]);
    while (arc != surface.arcs.end() && arc->edge < i) ++arc;
    if (arc == surface.arcs.end() || arc->edge != i) continue;
    AppendArc(outline[i], arc->through, outline[(i + 1) % outline.size()], points);
  }
  return points;
}

std::array<Point3, 2> DiagonalOf(const std::vector<Point3>& points, const Vector3& normal) {
  const Vector3 along = HorizontalIn(normal);
  const Vector3 up = Cross(along, normal);
  const Point3& origin = points.front();
  Range length;
  Range height;
  for (const Point3& point : points) {
    length.Add(Dot(point - origin, along));
    height.Add(Dot(point - origin, up));
  }
  return {origin + along * length.low + up * height.low,
          origin + along * length.high + up * height.high};
}

Point3 LowerCentreOf(const BuildingBox& box) {
  return {0.5 * (box.min.x + box.max.x), 0.5 * (box.min.y + box.max.y), box.min.z};
}

}  // namespace KelIFC
