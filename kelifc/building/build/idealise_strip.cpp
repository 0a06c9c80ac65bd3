#include "kelifc/building/build/idealise_strip.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

#include "kelifc/building/build/idealise_solid.h"

namespace KelIFC::building::idealising {
namespace {

// The corners of a strip turn by more than this, in radians; the chords of a curve by less.
constexpr double kCorner = 0.6;

// A side of an arc has at least this many points.
constexpr std::size_t kLeastPoints = 4;

// In outlines with more points no parallel sides are searched: each edge may be an end, so the
// search takes the square of the number of points.
constexpr std::size_t kMostPoints = 512;

// Sides are parallel if their directions differ by less than this, in radians, and their distance
// changes by less than kSameWidth, in metres.
constexpr double kParallel = 2e-3;
constexpr double kSameWidth = 1e-3;

// The points of a chord that is broken in two lie within this distance of a line, in metres. It is
// larger than the rounding of coordinates to 0.1 mm.
constexpr double kBrokenChord = 1e-4;

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

// The strip between the edge that ends at point `first` and the edge opposite to it.
Strip StripFrom(const Outline& outline, std::size_t first) {
  const std::size_t count = outline.size();
  const std::size_t last = first + count / 2 - 1;
  Strip strip;
  strip.right = Chain(outline, first % count, last % count);
  strip.left = Chain(outline, (last + 1) % count, (first + count - 1) % count);
  std::reverse(strip.left.begin(), strip.left.end());
  return strip;
}

// The signed distance of the right side from the left one at an edge; none if they are not
// parallel.
std::optional<double> WidthAt(const Strip& strip, std::size_t edge) {
  Vector2 left = strip.left[edge + 1] - strip.left[edge];
  Vector2 right = strip.right[edge + 1] - strip.right[edge];
  Normalise(left);
  Normalise(right);
  if (!(std::abs(Cross(left, right)) < kParallel && Dot(left, right) > 0.0)) return std::nullopt;
  return Cross(strip.right[edge] - strip.left[edge], left);
}

bool IsParallel(const Strip& strip) {
  const std::optional<double> width = WidthAt(strip, 0);
  if (!width || !(std::abs(*width) > kSameWidth)) return false;
  for (std::size_t i = 1; i + 1 < strip.left.size(); ++i) {
    const std::optional<double> other = WidthAt(strip, i);
    if (!other || !(std::abs(*other - *width) < kSameWidth)) return false;
  }
  return true;
}

// The outline without points on the line between their neighbours. Of two such points side by side
// one stays, so that fine chords keep their form.
Outline WithoutBrokenChords(const Outline& outline) {
  Outline result;
  bool isDropped = false;
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const Point2& before = outline[(i + outline.size() - 1) % outline.size()];
    Vector2 along = outline[(i + 1) % outline.size()] - before;
    Normalise(along);
    isDropped = !isDropped && std::fabs(Cross(along, outline[i] - before)) < kBrokenChord &&
                Dot(along, outline[i] - before) > 0.0;
    if (!isDropped) result.push_back(outline[i]);
  }
  return result;
}

Point3 InSpace(const Point2& p) { return {p.x, p.y, 0.0}; }

std::optional<PlaneCircle> CircleThrough(const Outline& chain) {
  if (chain.size() < kLeastPoints) return std::nullopt;
  ArcInSpace arc;
  if (!MakeArc(InSpace(chain.front()), InSpace(chain[chain.size() / 2]), InSpace(chain.back()),
               arc)) {
    return std::nullopt;
  }
  PlaneCircle circle{{arc.centre.x, arc.centre.y}, 0.0};
  circle.radius = Distance(circle.centre, chain.front());
  const bool isOnCircle = std::all_of(chain.begin(), chain.end(), [&](const Point2& p) {
    return std::fabs(Distance(circle.centre, p) - circle.radius) <= kOnCircle;
  });
  if (!isOnCircle) return std::nullopt;
  return circle;
}

double ChordError(const PlaneCircle& circle, const Outline& chain) {
  double error = 0.0;
  for (std::size_t i = 1; i < chain.size(); ++i) {
    const Point2 middle = Between(chain[i - 1], chain[i]);
    error = std::max(error, circle.radius - Distance(circle.centre, middle));
  }
  return error;
}

std::optional<ArcStrip> ArcsOf(const Outline& outline) {
  std::optional<Strip> strip = FindStrip(outline);
  if (!strip) return std::nullopt;
  const std::optional<StripCircles> circles = FindCircles(*strip);
  if (!circles || circles->chordError > kLargestChordError) return std::nullopt;
  return ArcStrip{std::move(*strip), *circles};
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

std::optional<Strip> FindParallelStrip(const Outline& outline) {
  const std::size_t count = outline.size();
  if (count < 6 || count % 2 != 0 || count > kMostPoints) return std::nullopt;
  for (std::size_t first = 0; first < count / 2; ++first) {
    Strip strip = StripFrom(outline, first);
    if (IsParallel(strip)) return strip;
  }
  return std::nullopt;
}

std::optional<StripCircles> FindCircles(const Strip& strip) {
  const std::optional<PlaneCircle> left = CircleThrough(strip.left);
  const std::optional<PlaneCircle> right = CircleThrough(strip.right);
  if (!left || !right || Distance(left->centre, right->centre) > 2 * kOnCircle) {
    return std::nullopt;
  }
  StripCircles circles{*left, *right, 0.0};
  circles.chordError = std::max(ChordError(*left, strip.left), ChordError(*right, strip.right));
  return circles;
}

std::optional<ArcStrip> FindArcStrip(const Outline& outline) {
  if (outline.size() < 2 * kLeastPoints) return std::nullopt;
  std::optional<ArcStrip> found = ArcsOf(outline);
  return found ? found : ArcsOf(WithoutBrokenChords(outline));
}

}  // namespace KelIFC::building::idealising
