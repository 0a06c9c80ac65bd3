#include "kelifc/building/build/idealise_strip.h"

#include <algorithm>
#include <cmath>

#include "kelifc/building/build/idealise_solid.h"

namespace KelIFC::building::idealising {
namespace {

// The corners of a strip turn by more than this, in radians; the chords of a curve by less.
constexpr double kCorner = 0.6;

// A side of an arc has at least this many points.
constexpr std::size_t kLeastPoints = 4;

// The distance within which points lie on a circle, in metres.
constexpr double kOnCircle = 1e-3;

// The largest distance of chords from the arc for which the curve counts as an arc, in metres.
constexpr double kLargestChordError = 3e-3;

double TurnAt(const Outline& outline, std::size_t i) {
  const std::size_t count = outline.size();
  const Vector2 before = outline[i] - outline[(i + count - 1) % count];
  const Vector2 after = outline[(i + 1) % count] - outline[i];
  return std::atan2(Cross(before, after), Dot(before, after));
}

Outline Chain(const Outline& outline, std::size_t from, std::size_t to) {
  Outline chain;
  for (std::size_t i = from; i != to; i = (i + 1) % outline.size()) chain.push_back(outline[i]);
  chain.push_back(outline[to]);
  return chain;
}

struct PlaneCircle {
  Point2 centre;
  double radius = 0.0;
};

Point3 InSpace(const Point2& p) { return {p.x, p.y, 0.0}; }

// The circle through the ends and the middle of a chain, if all its points lie on it.
std::optional<PlaneCircle> FitCircle(const Outline& chain) {
  if (chain.size() < kLeastPoints) return std::nullopt;
  ArcInSpace arc;
  if (!MakeArc(InSpace(chain.front()), InSpace(chain[chain.size() / 2]), InSpace(chain.back()),
               arc)) {
    return std::nullopt;
  }
  PlaneCircle circle{{arc.centre.x, arc.centre.y}, 0.0};
  circle.radius = Distance(circle.centre, chain.front());
  for (std::size_t i = 0; i < chain.size(); ++i) {
    if (std::fabs(Distance(circle.centre, chain[i]) - circle.radius) > kOnCircle) {
      return std::nullopt;
    }
    if (i == 0) continue;
    const Point2 middle = chain[i - 1] + (chain[i] - chain[i - 1]) * 0.5;
    if (circle.radius - Distance(circle.centre, middle) > kLargestChordError) return std::nullopt;
  }
  return circle;
}

Point2 Between(const Point2& a, const Point2& b) { return a + (b - a) * 0.5; }

std::optional<MiddleLine> ArcOf(const Strip& strip) {
  const std::optional<PlaneCircle> left = FitCircle(strip.left);
  const std::optional<PlaneCircle> right = FitCircle(strip.right);
  if (!left || !right || Distance(left->centre, right->centre) > 2 * kOnCircle) {
    return std::nullopt;
  }
  MiddleLine line;
  line.thickness = std::fabs(left->radius - right->radius);
  const double radius = (left->radius + right->radius) / 2;
  const auto onCircle = [&](const Point2& p) {
    return right->centre + (p - right->centre) * (radius / Distance(right->centre, p));
  };
  const Outline& longer = strip.left.size() > strip.right.size() ? strip.left : strip.right;
  line.points = {onCircle(Between(strip.left.front(), strip.right.front())),
                 onCircle(longer[longer.size() / 2]),
                 onCircle(Between(strip.left.back(), strip.right.back()))};
  return line;
}

// A strip with bends: the sides have as many points, and the same distance everywhere.
std::optional<MiddleLine> BentLineOf(const Strip& strip) {
  if (strip.left.size() != strip.right.size()) return std::nullopt;
  MiddleLine line;
  line.curve = CurveForm::kPolyline;
  for (std::size_t i = 0; i < strip.left.size(); ++i) {
    line.points.push_back(Between(strip.left[i], strip.right[i]));
  }
  const Vector2 along = line.points[1] - line.points[0];
  const double length = Length(along);
  if (!(length > 1e-6)) return std::nullopt;
  line.thickness = std::fabs(Cross(along, strip.left[0] - strip.right[0])) / length;
  return line;
}

}  // namespace

std::optional<Strip> FindStrip(const Outline& outline) {
  std::vector<std::size_t> corners;
  for (std::size_t i = 0; i < outline.size(); ++i) {
    if (std::fabs(TurnAt(outline, i)) < kCorner) continue;
    corners.push_back(i);
    if (corners.size() > 4) return std::nullopt;
  }
  if (corners.size() != 4) return std::nullopt;
  Outline chains[4];
  for (std::size_t i = 0; i < 4; ++i) {
    chains[i] = Chain(outline, corners[i], corners[(i + 1) % 4]);
  }
  const std::size_t first = chains[0].size() + chains[2].size() > 4 ? 0 : 1;
  const Outline& oneEnd = chains[(first + 1) % 4];
  const Outline& otherEnd = chains[(first + 3) % 4];
  if (oneEnd.size() != 2 || otherEnd.size() != 2) return std::nullopt;
  Strip strip{chains[first + 2], chains[first]};
  if (strip.left.size() < 3 || strip.right.size() < 3) return std::nullopt;
  std::reverse(strip.left.begin(), strip.left.end());
  return strip;
}

std::optional<MiddleLine> MiddleOf(const Strip& strip) {
  std::optional<MiddleLine> line = ArcOf(strip);
  if (!line) line = BentLineOf(strip);
  if (!line || !(line->thickness > 1e-6)) return std::nullopt;
  return line;
}

}  // namespace KelIFC::building::idealising
