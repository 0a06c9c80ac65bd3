#include "kelifc/building/measures.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace KelIFC {
namespace {

/// The arc of a circle from `from` to `to` through a point between them.
struct Arc {
  Point3 from;
  Point3 through;
  Point3 to;
};

/// The radius and the angle at the centre. The angle is 0 for a straight arc, whose radius has no
/// meaning.
struct ArcSizes {
  double radius = 0.0;
  double angle = 0.0;
};

/// The angle at the point between the ends is half of the rest of the circle.
ArcSizes SizesOf(const Arc& arc) {
  const double chord = Length(arc.to - arc.from);
  if (chord == 0.0) return {0.5 * Length(arc.through - arc.from), 2.0 * std::numbers::pi};
  const double inscribed = Angle(arc.from - arc.through, arc.to - arc.through);
  const double sine = std::sin(inscribed);
  constexpr double kStraight = 1e-9;  // a flatter arc is measured as its chord
  if (sine < kStraight) return {};
  return {chord / (2.0 * sine), 2.0 * (std::numbers::pi - inscribed)};
}

double LengthOfArc(const Arc& arc) {
  const ArcSizes sizes = SizesOf(arc);
  return sizes.angle == 0.0 ? Length(arc.to - arc.from) : sizes.radius * sizes.angle;
}

/// The area between an arc and its chord.
double SegmentArea(const Arc& arc) {
  const ArcSizes sizes = SizesOf(arc);
  return 0.5 * sizes.radius * sizes.radius * (sizes.angle - std::sin(sizes.angle));
}

double LengthOfCurve(CurveForm form, const std::vector<Point3>& points) {
  if (form == CurveForm::kArc && points.size() == 3) {
    return LengthOfArc({points[0], points[1], points[2]});
  }
  double length = 0.0;
  for (std::size_t i = 1; i < points.size(); ++i) length += Length(points[i] - points[i - 1]);
  return length;
}

double LengthOfLoop(const std::vector<Point3>& loop) {
  double length = LengthOfCurve(CurveForm::kPolyline, loop);
  if (!loop.empty()) length += Length(loop.front() - loop.back());
  return length;
}

const Point3& Next(const std::vector<Point3>& loop, std::size_t i) {
  return loop[i + 1 < loop.size() ? i + 1 : 0];
}

/// Positive if the loop is counter-clockwise seen against the normal.
double AreaOfLoop(const std::vector<Point3>& loop, const Vector3& normal) {
  double area = 0.0;
  for (std::size_t i = 2; i < loop.size(); ++i) {
    area += Dot(Cross(loop[i - 1] - loop[0], loop[i] - loop[0]), normal);
  }
  return 0.5 * area;
}

bool IsSteep(const SurfaceRegion& surface) { return std::abs(surface.normal.z) < std::sqrt(0.5); }

/// The extent of the outline along the horizontal direction in its plane.
double HorizontalExtent(const SurfaceRegion& surface) {
  Vector3 along = Cross({0.0, 0.0, 1.0}, surface.normal);
  Normalise(along);
  double low = 0.0;
  double high = 0.0;
  for (const Point3& point : surface.outline) {
    const double at = Dot(point - surface.outline.front(), along);
    low = std::min(low, at);
    high = std::max(high, at);
  }
  return high - low;
}

}  // namespace

double LengthOf(const MemberAxis& member) { return LengthOfCurve(member.curve, member.points); }

double LengthOf(const WallSweep& sweep) { return LengthOfCurve(sweep.curve, sweep.points); }

double PerimeterOf(const SurfaceRegion& surface) {
  if (surface.sweep) return LengthOf(*surface.sweep);
  double length = LengthOfLoop(surface.outline);
  for (const OutlineArc& arc : surface.arcs) {
    if (arc.edge >= surface.outline.size()) continue;
    const Point3& from = surface.outline[arc.edge];
    const Point3& to = Next(surface.outline, arc.edge);
    length += LengthOfArc({from, arc.through, to}) - Length(to - from);
  }
  for (const auto& hole : surface.holes) length += LengthOfLoop(hole);
  return length;
}

double AreaOf(const SurfaceRegion& surface) {
  if (surface.sweep) return LengthOf(*surface.sweep) * surface.sweep->height;
  double area = AreaOfLoop(surface.outline, surface.normal);
  for (const OutlineArc& arc : surface.arcs) {
    if (arc.edge >= surface.outline.size()) continue;
    const Point3& from = surface.outline[arc.edge];
    const Point3& to = Next(surface.outline, arc.edge);
    const double side = Dot(Cross(to - from, arc.through - from), surface.normal);
    area -= std::copysign(SegmentArea({from, arc.through, to}), side);
  }
  for (const auto& hole : surface.holes) area -= std::abs(AreaOfLoop(hole, surface.normal));
  return area;
}

std::optional<double> LengthOf(const BuildingElement& element) {
  if (element.member) return LengthOf(*element.member);
  if (!element.surface) return std::nullopt;
  if (element.surface->sweep) return LengthOf(*element.surface->sweep);
  if (!IsSteep(*element.surface)) return std::nullopt;
  return HorizontalExtent(*element.surface);
}

}  // namespace KelIFC
