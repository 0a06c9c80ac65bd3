#include "kelifc/building/build/idealise_bends.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "kelifc/building/build/idealise_member.h"
#include "kelifc/building/build/idealise_scan.h"

namespace KelIFC::building::idealising {
namespace {

// Where the body is cut in the plane of the bends, as a part of its extent. A little beside the
// middle, so that the cut does not run through points.
constexpr double kCut = 0.4999;

// Ends whose corners are within this distance of a radius of the arc are square, in metres.
constexpr double kSquareEnd = 1e-3;

// Members that are thinner or shorter than this are none, in metres.
constexpr double kLeastExtent = 1e-6;

// The edge beside which a member has its whole section. Of an arc that is the middle one: beside
// the first and the last one, a skew end may cut the section.
std::size_t EdgeOfWholeSection(const Strip& strip) {
  const Outline& chain = strip.left;
  if (FindCircles(strip)) return (chain.size() - 1) / 2;
  std::size_t longest = 0;
  for (std::size_t i = 1; i + 1 < chain.size(); ++i) {
    if (Distance(chain[i], chain[i + 1]) > Distance(chain[longest], chain[longest + 1]) + 1e-9) {
      longest = i;
    }
  }
  return longest;
}

std::optional<Strip> StripOf(const Outline& outline) {
  if (std::optional<ArcStrip> arcs = FindArcStrip(outline)) return std::move(arcs->strip);
  std::optional<Strip> strip = FindStrip(outline);
  return strip ? strip : FindParallelStrip(outline);
}

}  // namespace

std::optional<Bends> FindBends(Subject& subject, const Vector3& normal) {
  Bends bends;
  bends.plane = FrameAcross(normal, {});
  const Span span = subject.boundary.Along(bends.Normal());
  if (!(span.Length() > kLeastExtent)) return std::nullopt;
  const std::optional<Section> section =
      SectionAt(subject.boundary, bends.plane, span.from + kCut * span.Length());
  if (!section || !section->region.holes.empty()) return std::nullopt;
  std::optional<Strip> strip = StripOf(section->region.outer);
  if (!strip) return std::nullopt;
  bends.strip = std::move(*strip);
  const Vector3 chord = bends.InSpace(bends.strip.left.back() - bends.strip.left.front());
  if (!(Length(chord) > kLeastExtent)) return std::nullopt;
  if (Dot(OrientAxis(subject, Unit(chord)), chord) < 0.0) {
    std::reverse(bends.strip.left.begin(), bends.strip.left.end());
    std::reverse(bends.strip.right.begin(), bends.strip.right.end());
  }
  bends.edge = EdgeOfWholeSection(bends.strip);
  return bends;
}

double LevelOfCut(const Subject& subject, const Bends& bends) {
  const Span span = subject.boundary.Along(bends.Normal());
  return span.from + kCut * span.Length();
}

bool IsRadial(const Point2& centre, const Point2& a, const Point2& b) {
  Vector2 radius = a - centre;
  Normalise(radius);
  return std::abs(Cross(radius, b - centre)) <= kSquareEnd && Dot(radius, b - centre) > 0.0;
}

}  // namespace KelIFC::building::idealising
