#include <algorithm>

#include "kelifc/building/build/idealise_curved.h"
#include "kelifc/building/build/idealise_scan.h"
#include "kelifc/building/build/idealise_strip.h"

namespace KelIFC::building::idealising {

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
  const std::optional<MiddleLine> line = MiddleOf(*strip);
  if (!line) return std::nullopt;
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
