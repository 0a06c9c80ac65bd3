#include "kelifc/building/profile/section_moments.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>

#include "kelifc/building/profile/plane_arc.h"

namespace KelIFC::building {

namespace {

// Integrals over the area that a closed line bounds, made by Green's theorem from integrals along
// the line. These are done by Gauss's quadrature: exactly for straight edges, and to rounding for
// short pieces of arcs.
class Moments {
 public:
  explicit Moments(const Point2& where) : origin(where) {}

  void AddLoop(const Contour& contour) {
    ForEachEdge(contour, [this](const Point2& start, const Point2& end, const auto& arc) {
      if (arc) {
        AddArc(*arc);
      } else {
        AddLine(start, end);
      }
    });
  }

  void AddLine(const Point2& start, const Point2& end) {
    const Vector2 edge = end - start;
    const double near = 0.5 - std::sqrt(1.0 / 12.0);
    Add(start + edge * near, edge * 0.5);
    Add(start + edge * (1.0 - near), edge * 0.5);
  }

  void Subtract(const Moments& hole) {
    const double sign = (area < 0.0) == (hole.area < 0.0) ? -1.0 : 1.0;
    area += sign * hole.area;
    x += sign * hole.x;
    y += sign * hole.y;
    xx += sign * hole.xx;
    yy += sign * hole.yy;
    xy += sign * hole.xy;
  }

  RegionProperties Finish() const {
    RegionProperties result;
    const double sign = area < 0.0 ? -1.0 : 1.0;
    const Vector2 middle(x / area, y / area);
    result.area = sign * area;
    result.centroid = origin + middle;
    result.iy = sign * yy - result.area * middle.y * middle.y;
    result.iz = sign * xx - result.area * middle.x * middle.x;
    result.iyz = sign * xy - result.area * middle.x * middle.y;
    const bool isFinite = std::isfinite(result.iy) && std::isfinite(result.iz) &&
                          std::isfinite(result.iyz) && std::isfinite(Length(middle));
    return isFinite ? result : RegionProperties{};
  }

 private:
  void AddArc(const PlaneArc& arc) {
    // Five points integrate a piece of this size to about 14 digits.
    constexpr double kPiece = std::numbers::pi / 16.0;
    constexpr std::array<double, 3> kPlaces = {0.0, 0.5384693101056831, 0.9061798459386640};
    constexpr std::array<double, 3> kWeights = {0.5688888888888889, 0.4786286704993665,
                                                0.2369268850561891};
    const int pieces = static_cast<int>(std::ceil(std::abs(arc.sweep) / kPiece));
    const double step = arc.sweep / pieces;
    const Vector2 forward = DirectionOf(step);
    const std::array<Vector2, 3> turns = {Vector2(1.0, 0.0), DirectionOf(kPlaces[1] * step / 2.0),
                                          DirectionOf(kPlaces[2] * step / 2.0)};
    Vector2 middle = DirectionOf(arc.start + step / 2.0) * arc.radius;
    for (int piece = 0; piece < pieces; ++piece, middle = Turned(middle, forward)) {
      AddArcPoint(arc, middle, kWeights[0] / 2.0 * step);
      for (std::size_t i = 1; i < turns.size(); ++i) {
        AddArcPoint(arc, Turned(middle, turns[i]), kWeights[i] / 2.0 * step);
        AddArcPoint(arc, Turned(middle, {turns[i].x, -turns[i].y}), kWeights[i] / 2.0 * step);
      }
    }
  }

  void AddArcPoint(const PlaneArc& arc, const Vector2& spoke, double weight) {
    Add(arc.centre + spoke, {-spoke.y * weight, spoke.x * weight});
  }

  static Vector2 DirectionOf(double angle) { return {std::cos(angle), std::sin(angle)}; }
  static Vector2 Turned(const Vector2& v, const Vector2& turn) {
    return {v.x * turn.x - v.y * turn.y, v.x * turn.y + v.y * turn.x};
  }

  // Adds the integrand at a point times a part of the line.
  void Add(const Point2& point, const Vector2& part) {
    const Vector2 p = point - origin;
    area += 0.5 * (p.x * part.y - p.y * part.x);
    x += 0.5 * p.x * p.x * part.y;
    y -= 0.5 * p.y * p.y * part.x;
    xx += p.x * p.x * p.x / 3.0 * part.y;
    yy -= p.y * p.y * p.y / 3.0 * part.x;
    xy += 0.5 * p.x * p.x * p.y * part.y;
  }

  Point2 origin;
  double area = 0.0;
  double x = 0.0;
  double y = 0.0;
  double xx = 0.0;
  double yy = 0.0;
  double xy = 0.0;
};

// The centre of the bounding box keeps the products small.
Point2 CentreOf(const Outline& points) {
  if (points.empty()) return {};
  const auto [left, right] = std::minmax_element(
      points.begin(), points.end(), [](const Point2& a, const Point2& b) { return a.x < b.x; });
  const auto [low, high] = std::minmax_element(
      points.begin(), points.end(), [](const Point2& a, const Point2& b) { return a.y < b.y; });
  return {left->x + (right->x - left->x) / 2.0, low->y + (high->y - low->y) / 2.0};
}

Contour ContourOf(const Outline& loop) { return {loop, {}}; }

}  // namespace

RegionProperties PropertiesOf(const Region& region) {
  const Point2 origin = CentreOf(region.outer.points);
  Moments sum(origin);
  sum.AddLoop(region.outer);
  for (const Contour& hole : region.holes) {
    Moments moments(origin);
    moments.AddLoop(hole);
    sum.Subtract(moments);
  }
  return sum.Finish();
}

RegionProperties PropertiesOf(const FlatRegion& region) {
  Region copy{ContourOf(region.outer), {}};
  for (const Outline& hole : region.holes) copy.holes.push_back(ContourOf(hole));
  return PropertiesOf(copy);
}

}  // namespace KelIFC::building
