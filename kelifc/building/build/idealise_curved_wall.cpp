#include <algorithm>
#include <cmath>

#include "kelifc/building/build/idealise_curved.h"
#include "kelifc/building/build/idealise_scan.h"
#include "kelifc/building/build/idealise_strip.h"

namespace KelIFC::building::idealising {
namespace {

// The middle line of a strip.
struct MiddleLine {
  CurveForm curve = CurveForm::kArc;
  Outline points;
  double thickness = 0.0;
};

std::optional<MiddleLine> ArcOf(const Strip& strip) {
  const std::optional<StripCircles> circles = FindCircles(strip);
  if (!circles || circles->chordError > kLargestChordError) return std::nullopt;
  MiddleLine line;
  line.thickness = std::fabs(circles->left.radius - circles->right.radius);
  const Point2& centre = circles->right.centre;
  const double radius = (circles->left.radius + circles->right.radius) / 2;
  const auto onCircle = [&](const Point2& p) {
    return centre + (p - centre) * (radius / Distance(centre, p));
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

std::optional<Reading> ReadCurvedWall(Subject& subject, const Vector3& up) {
  const PlaneFrame plane = FrameAcross(up, {});
  const Span span = subject.boundary.Along(up);
  if (!(span.Length() > 1e-6)) return std::nullopt;
  const std::vector<Section> sections = ScanSections(subject.boundary, plane, span);
  if (sections.empty() || sections[0].regionCount != 1 || !sections[0].region.holes.empty()) {
    return std::nullopt;
  }
  const std::optional<Strip> strip = FindStrip(sections[0].region.outer);
  if (!strip) return std::nullopt;
  std::optional<MiddleLine> line = ArcOf(*strip);
  if (!line) line = BentLineOf(*strip);
  if (!line || !(line->thickness > 1e-6)) return std::nullopt;
  Reading reading;
  reading.kind = ElementKind::kSurface;
  reading.surface.thickness = line->thickness;
  WallSweep sweep;
  sweep.curve = line->curve;
  PlaneFrame base = plane;
  base.origin += (span.from - At(plane.origin, up)) * up;
  double length = 0.0;
  for (std::size_t i = 0; i < line->points.size(); ++i) {
    sweep.points.push_back(Lift(base, line->points[i]));
    if (i > 0) length += Distance(line->points[i - 1], line->points[i]);
  }
  sweep.direction = up;
  sweep.height = span.Length();
  reading.surface.sweep = std::move(sweep);
  const double smaller = std::min(length, span.Length());
  reading.size = line->thickness;
  reading.suitability = SuitabilityOfSurface(
      subject.role,
      {std::max(length, span.Length()) / std::max(smaller, 1e-9), smaller / line->thickness});
  if (!Measure(subject, reading)) return std::nullopt;
  return reading;
}

}  // namespace KelIFC::building::idealising
