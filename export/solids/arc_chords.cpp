#include "export/solids/arc_chords.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace KelIFC::exporting {
namespace {

constexpr double kChordError = 1e-3;
constexpr double kFewestChords = 2.0;
constexpr double kMostChords = 200.0;

double ChordCountOf(double radius, double angle) {
  const double cosine = 1.0 - kChordError / std::max(radius, kChordError);
  const double step = 2.0 * std::acos(cosine);
  return std::clamp(std::ceil(angle / step), kFewestChords, kMostChords);
}

}  // namespace

void AppendArc(std::vector<Point3>& points, const Point3& from, const Point3& through,
               const Point3& to) {
  const Vector3 a = through - from;
  const Vector3 b = to - from;
  const Vector3 n = Cross(a, b);
  const double square = Dot(n, n);
  constexpr double kStraight = 1e-16;
  if (!(square > kStraight * Dot(a, a) * Dot(b, b))) {
    points.push_back(to);
    return;
  }
  // The centre has the same distance from all three points.
  const Vector3 toCentre = (Dot(a, a) * Cross(b, n) + Dot(b, b) * Cross(n, a)) / (2.0 * square);
  const Point3 centre = from + toCentre;
  const Vector3 u = -toCentre;
  const Vector3 v = Cross(n / std::sqrt(square), u);
  double angle = std::atan2(Dot(to - centre, v), Dot(to - centre, u));
  if (angle <= 0.0) angle += 2.0 * std::numbers::pi;
  const double count = ChordCountOf(Length(u), angle);
  for (double i = 1.0; i < count; i += 1.0) {
    const double turn = angle * i / count;
    points.push_back(centre + (std::cos(turn) * u + std::sin(turn) * v));
  }
  points.push_back(to);
}

}  // namespace KelIFC::exporting
