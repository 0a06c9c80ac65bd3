#include "kelifc/building/profile/rounded_contour.h"

#include <cmath>
#include <cstddef>

namespace KelIFC::building {

namespace {

constexpr double kSamePoint = 1e-9;  // metres
constexpr double kOverlap = 1e-7;    // by which two arcs may exceed the edge between them

// The arc of a corner: its ends on the two edges, and a point between them.
struct Rounding {
  Point2 before;
  Point2 through;
  Point2 after;
  double tangent = 0.0;  // distance of the ends from the corner
};

std::optional<Rounding> RoundingOf(const Point2& previous, const RoundedCorner& corner,
                                   const Point2& next) {
  Rounding rounding{corner.point, corner.point, corner.point};
  if (corner.radius == 0.0) return rounding;
  Vector2 back = previous - corner.point;
  Vector2 ahead = next - corner.point;
  Normalise(back);
  Normalise(ahead);
  const Vector2 sum(back.x + ahead.x, back.y + ahead.y);
  const double sine = Length(Vector2(back.x - ahead.x, back.y - ahead.y)) / 2.0;
  const double cosine = Length(sum) / 2.0;
  if (!(sine > 1e-6) || !(corner.radius > 0.0)) return std::nullopt;
  if (cosine < 1e-9) return rounding;  // the edges lie on a line
  rounding.tangent = corner.radius * cosine / sine;
  rounding.before = corner.point + back * rounding.tangent;
  rounding.after = corner.point + ahead * rounding.tangent;
  rounding.through = corner.point + sum * ((corner.radius / sine - corner.radius) / (2.0 * cosine));
  return rounding;
}

}  // namespace

std::optional<Contour> RoundedContour(const std::vector<RoundedCorner>& corners) {
  const std::size_t count = corners.size();
  std::vector<Rounding> roundings;
  for (std::size_t i = 0; i < count; ++i) {
    const auto rounding = RoundingOf(corners[(i + count - 1) % count].point, corners[i],
                                     corners[(i + 1) % count].point);
    if (!rounding) return std::nullopt;
    roundings.push_back(*rounding);
  }
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t next = (i + 1) % count;
    const double length = Distance(corners[i].point, corners[next].point);
    if (!(roundings[i].tangent + roundings[next].tangent <= length + kOverlap)) return std::nullopt;
  }
  Contour contour;
  const auto add = [&contour](const Point2& point) {
    if (contour.points.empty() || !(Distance(contour.points.back(), point) <= kSamePoint)) {
      contour.points.push_back(point);
    }
  };
  for (const Rounding& rounding : roundings) {
    add(rounding.before);
    if (rounding.tangent <= kSamePoint) continue;
    contour.arcs.push_back({contour.points.size() - 1, rounding.through});
    contour.points.push_back(rounding.after);
  }
  if (contour.points.size() > 1 &&
      Distance(contour.points.back(), contour.points.front()) <= kSamePoint) {
    contour.points.pop_back();
  }
  if (contour.points.size() < 3) return std::nullopt;
  return contour;
}

}  // namespace KelIFC::building
