#include <algorithm>
#include <cmath>

#include "kelifc/building/build/idealise_curved.h"
#include "kelifc/building/build/idealise_scan.h"
#include "kelifc/building/build/idealise_strip.h"

namespace KelIFC::building::idealising {
namespace {

// Walls that are lower or thinner than this are none, in metres.
constexpr double kLeastHeight = 1e-6;
constexpr double kLeastThickness = 1e-6;

// The middle line of a strip.
struct MiddleLine {
  CurveForm curve = CurveForm::kArc;
  Outline points;
  double thickness = 0.0;
};

MiddleLine ArcOf(const ArcStrip& arcs) {
  const auto& [strip, circles] = arcs;
  MiddleLine line;
  line.thickness = std::fabs(circles.left.radius - circles.right.radius);
  const Point2& centre = circles.right.centre;
  const double radius = (circles.left.radius + circles.right.radius) / 2;
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

std::optional<MiddleLine> MiddleOf(const Outline& outline) {
  if (const std::optional<ArcStrip> arcs = FindArcStrip(outline)) return ArcOf(*arcs);
  const std::optional<Strip> strip = FindStrip(outline);
  return strip ? BentLineOf(*strip) : std::nullopt;
}

// The section of one region, without holes, that holds over the greatest height.
const Section* PlanOf(const std::vector<Section>& sections) {
  const auto plan = std::find_if(sections.begin(), sections.end(), [](const Section& section) {
    return section.regionCount == 1 && section.region.holes.empty();
  });
  return plan != sections.end() ? &*plan : nullptr;
}

// True if a section is a bent wall that a door divides. The parts of a straight wall have four
// points.
bool IsDivided(const Section& section) {
  return section.regionCount > 1 && section.region.outer.size() > 4;
}

// The middle line in the plan of a wall. If a door divides the section that holds over the greatest
// height, the plan is above or below that section.
std::optional<MiddleLine> LineInPlan(Boundary& boundary, const PlaneFrame& plane,
                                     const Span& span) {
  if (!(span.Length() > kLeastHeight)) return std::nullopt;
  const std::vector<Section> sections = ScanSections(boundary, plane, span);
  if (const Section* plan = PlanOf(sections)) return MiddleOf(plan->region.outer);
  if (sections.empty() || !IsDivided(sections[0])) return std::nullopt;
  const Span gap = LongestGap(boundary, NormalOf(plane), span);
  for (const Span& rest : {Span{gap.to, span.to}, Span{span.from, gap.from}}) {
    if (!(rest.Length() > kLeastHeight)) continue;
    const std::vector<Section> others = ScanSections(boundary, plane, rest);
    if (const Section* plan = PlanOf(others)) return MiddleOf(plan->region.outer);
  }
  return std::nullopt;
}

Reading MakeCurvedWall(const Subject& subject, const MiddleLine& line, const PlaneFrame& base,
                       double height) {
  Reading reading;
  reading.kind = ElementKind::kSurface;
  reading.surface.thickness = line.thickness;
  WallSweep sweep;
  sweep.curve = line.curve;
  double length = 0.0;
  for (std::size_t i = 0; i < line.points.size(); ++i) {
    sweep.points.push_back(Lift(base, line.points[i]));
    if (i > 0) length += Distance(line.points[i - 1], line.points[i]);
  }
  sweep.direction = NormalOf(base);
  sweep.height = height;
  reading.surface.sweep = std::move(sweep);
  const double smaller = std::min(length, height);
  reading.size = line.thickness;
  reading.suitability = SuitabilityOfSurface(
      subject.role, {std::max(length, height) / std::max(smaller, 1e-9), smaller / line.thickness});
  return reading;
}

}  // namespace

std::optional<Reading> ReadCurvedWall(Subject& subject, const Vector3& up) {
  PlaneFrame plane = FrameAcross(up, {});
  const Span span = subject.boundary.Along(up);
  const std::optional<MiddleLine> line = LineInPlan(subject.boundary, plane, span);
  if (!line || !(line->thickness > kLeastThickness)) return std::nullopt;
  plane.origin += (span.from - At(plane.origin, up)) * up;
  Reading reading = MakeCurvedWall(subject, *line, plane, span.Length());
  if (!Measure(subject, reading)) return std::nullopt;
  return reading;
}

}  // namespace KelIFC::building::idealising
