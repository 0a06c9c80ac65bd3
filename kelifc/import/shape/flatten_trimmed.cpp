#include "kelifc/import/shape/flatten_trimmed.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <numbers>
#include <utility>

#include "kelifc/geometry/rotation2.h"

namespace KelIFC {

namespace {

/// The angle of a chord of an arc between points, in radians.
constexpr double kArcStep = std::numbers::pi / 32;

/// The number of chords of an arc between parameters.
constexpr int kChords = 32;

void Add(Mvector<Point3>& points, const Point2& point) {
  points.push_back(Point3(point.x, point.y, 0.0));
}

void AddLine(Mvector<Point3>& points, Point2 start, Point2 end, bool isForward, bool withStart) {
  if (!isForward) std::swap(start, end);
  if (withStart) Add(points, start);
  Add(points, end);
}

/// Appends the ends of the chords between the start and the end of an arc. It appends one point at
/// least; if the arc is shorter than a chord, that point is after the end of the arc.
void AddChords(Mvector<Point3>& points, const TrimmedCurveFacts& curve, double tolerance) {
  const Vector2 toEnd = curve.end - curve.centre;
  Vector2 toPoint = curve.start - curve.centre;
  const double startAngle = DirectionAngle(toPoint.x, toPoint.y);
  double endAngle = DirectionAngle(toEnd.x, toEnd.y);
  const double turn = curve.isForward ? 2 * std::numbers::pi : -2 * std::numbers::pi;
  if (curve.isForward ? endAngle < startAngle : startAngle < endAngle) endAngle += turn;
  const double step = curve.isForward ? kArcStep : -kArcStep;
  const Rotation2 rotation(step);
  toPoint = Rotate(toPoint, rotation);
  double angle = startAngle + step;
  bool isInside = true;
  while (isInside) {
    Add(points, curve.centre + toPoint);
    toPoint = Rotate(toPoint, rotation);
    angle += step;
    // A comparison with NaN is false, which ends the loop.
    isInside = curve.isForward ? angle <= endAngle - tolerance : angle >= endAngle + tolerance;
  }
}

/// Returns whole degrees in radians; 0 if they do not fit into 32 bits, or are NaN.
double AngleOf(double degrees) {
  using Limits = std::numeric_limits<std::int32_t>;
  const double whole = std::trunc(degrees);
  const bool isNumber = whole >= Limits::min() && whole <= Limits::max();
  return isNumber ? whole * std::numbers::pi / 180 : 0.0;
}

void AddParameterArc(Mvector<Point3>& points, const TrimmedCurveFacts& curve) {
  double start = AngleOf(curve.startParameter);
  double end = AngleOf(curve.endParameter);
  if (!curve.isForward) std::swap(start, end);
  Vector2 radius = curve.xAxis;
  Normalise(radius);
  radius = radius * curve.radius;
  const double step = (end - start) / kChords;
  for (int i = 0; i < kChords; ++i) {
    Add(points, curve.centre + Rotate(radius, Rotation2(start + i * step)));
  }
}

void AddCartesian(Mvector<Point3>& points, const TrimmedCurveFacts& curve, double tolerance,
                  bool withStart) {
  if (curve.basis == BasisKind::kLine) {
    AddLine(points, curve.start, curve.end, curve.isForward, withStart);
  } else if (curve.basis == BasisKind::kCircle) {
    if (withStart) Add(points, curve.start);
    AddChords(points, curve, tolerance);
    Add(points, curve.end);
  }
}

void AddParameter(Mvector<Point3>& points, const TrimmedCurveFacts& curve, bool withStart) {
  if (curve.basis == BasisKind::kCircle) {
    AddParameterArc(points, curve);
  } else if (curve.basis == BasisKind::kLine) {
    const Point2 start = curve.linePoint + curve.lineDirection * AngleOf(curve.startParameter);
    const Point2 end = curve.linePoint + curve.lineDirection * AngleOf(curve.endParameter);
    AddLine(points, start, end, curve.isForward, withStart);
  }
}

}  // namespace

void FlattenTrimmed(Mvector<Point3>& points, const TrimmedCurveFacts& curve, double tolerance,
                    std::size_t segmentNumber) {
  const bool withStart = segmentNumber == 1;
  if (curve.trim == TrimKind::kCartesian) AddCartesian(points, curve, tolerance, withStart);
  if (curve.trim == TrimKind::kParameter) AddParameter(points, curve, withStart);
}

}  // namespace KelIFC
