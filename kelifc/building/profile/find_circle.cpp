#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

#include "kelifc/building/profile/find_corners.h"

namespace KelIFC::building {

namespace {

// With fewer chords a loop is a polygon. The chords of a regular polygon of 12 edges turn by 30
// degrees; the largest turn allows for rounded coordinates.
constexpr std::size_t kFewestChords = 12;
constexpr double kLargestChord = 31.0 * std::numbers::pi / 180.0;

// Rounded coordinates may turn a very short chord back by this angle, in radians.
constexpr double kLargestBackStep = std::numbers::pi / 180.0;
constexpr double kRelativeTolerance = 0.05;  // of the radius

// The circle with the least squares of |p - c|^2 - r^2.
std::optional<FoundCircle> FitCircle(const Outline& loop) {
  const Point2 origin = loop.front();
  const auto count = static_cast<double>(loop.size());
  Vector2 mean;
  for (const Point2& point : loop) {
    const Vector2 p = point - origin;
    mean = {mean.x + p.x / count, mean.y + p.y / count};
  }
  double xx = 0.0, yy = 0.0, xy = 0.0, xs = 0.0, ys = 0.0, squares = 0.0;
  for (const Point2& point : loop) {
    const Vector2 p = point - (origin + mean);
    const double square = Dot(p, p);
    xx += p.x * p.x;
    yy += p.y * p.y;
    xy += p.x * p.y;
    xs += p.x * square;
    ys += p.y * square;
    squares += square;
  }
  const double determinant = xx * yy - xy * xy;
  if (!(determinant > 1e-9 * xx * yy)) return std::nullopt;
  const Vector2 centre((xs * yy - ys * xy) / (2.0 * determinant),
                       (ys * xx - xs * xy) / (2.0 * determinant));
  return FoundCircle{(origin + mean) + centre, std::sqrt(squares / count + Dot(centre, centre))};
}

}  // namespace

std::optional<FoundCircle> FindCircle(const Outline& loop) {
  if (loop.size() < kFewestChords) return std::nullopt;
  const auto circle = FitCircle(loop);
  if (!circle) return std::nullopt;
  const double tolerance = std::min(kShapeTolerance, kRelativeTolerance * circle->radius);
  double turn = 0.0;
  for (std::size_t i = 0; i < loop.size(); ++i) {
    const Vector2 here = loop[i] - circle->centre;
    const Vector2 next = loop[(i + 1) % loop.size()] - circle->centre;
    if (!(std::abs(Length(here) - circle->radius) <= tolerance)) return std::nullopt;
    const double step = std::atan2(Cross(here, next), Dot(here, next));
    if (!(step >= -kLargestBackStep && step <= kLargestChord)) return std::nullopt;
    turn += step;
  }
  if (std::abs(turn - 2.0 * std::numbers::pi) > 0.1) return std::nullopt;
  return circle;
}

}  // namespace KelIFC::building
