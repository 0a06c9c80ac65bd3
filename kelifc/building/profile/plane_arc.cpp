#include "kelifc/building/profile/plane_arc.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace KelIFC::building {

namespace {

constexpr double kTurn = 2.0 * std::numbers::pi;
constexpr double kSmallestSagitta = 1e-9;  // a flatter arc is straight, in metres
constexpr double kChordsOfCircle = 38.0;   // the fewest chords of a full circle

// The most chords of one arc, and of all arcs of a contour.
constexpr std::size_t kMostChords = 4096;
constexpr std::size_t kMostChordsOfContour = 1'000'000;

}  // namespace

Point2 PlaneArc::At(double fraction) const {
  const double angle = start + fraction * sweep;
  return {centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)};
}

std::optional<PlaneArc> ArcThrough(const Point2& start, const Point2& through, const Point2& end) {
  const Vector2 a = through - start;
  const Vector2 b = end - start;
  const double twiceArea = Cross(a, b);
  if (!(std::abs(twiceArea) > kSmallestSagitta * Length(b))) return std::nullopt;
  const double aa = Dot(a, a);
  const double bb = Dot(b, b);
  const Vector2 toCentre((b.y * aa - a.y * bb) / (2.0 * twiceArea),
                         (a.x * bb - b.x * aa) / (2.0 * twiceArea));
  PlaneArc arc;
  arc.centre = start + toCentre;
  arc.radius = Length(toCentre);
  if (!std::isfinite(arc.radius)) return std::nullopt;
  arc.start = std::atan2(-toCentre.y, -toCentre.x);
  const double stop = std::atan2(b.y - toCentre.y, b.x - toCentre.x);
  arc.sweep = stop - arc.start;
  if (twiceArea > 0.0 && arc.sweep <= 0.0) arc.sweep += kTurn;
  if (twiceArea < 0.0 && arc.sweep >= 0.0) arc.sweep -= kTurn;
  return arc;
}

std::size_t ChordCount(double radius, double sweep, double error, std::size_t limit) {
  // The distance of a chord of the angle s from its arc is r (1 - cos(s / 2)) = 2 r sin^2(s / 4).
  const double ratio = std::min(1.0, error / (2.0 * radius));
  const double step = std::min(kTurn / kChordsOfCircle, 4.0 * std::asin(std::sqrt(ratio)));
  const double count = std::ceil(std::abs(sweep) / step - 1e-9);
  if (!(count < static_cast<double>(limit))) return limit;
  return std::max<std::size_t>(1, static_cast<std::size_t>(count));
}

std::vector<Point2> ChordsOf(const Contour& contour, double error) {
  const std::size_t limit = std::clamp<std::size_t>(
      kMostChordsOfContour / (contour.arcs.size() + 1), std::size_t{1}, kMostChords);
  std::vector<Point2> chords;
  ForEachEdge(contour, [&](const Point2& start, const Point2& /*end*/, const auto& arc) {
    chords.push_back(start);
    if (!arc) return;
    const std::size_t parts = ChordCount(arc->radius, arc->sweep, error, limit);
    for (std::size_t part = 1; part < parts; ++part) {
      chords.push_back(arc->At(static_cast<double>(part) / static_cast<double>(parts)));
    }
  });
  return chords;
}

}  // namespace KelIFC::building
