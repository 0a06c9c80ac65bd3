#include "kelifc/building/build/idealise_surface.h"

#include <algorithm>
#include <cmath>

#include "kelifc/building/build/idealise_bevel.h"
#include "kelifc/building/build/idealise_scan.h"

namespace KelIFC::building::idealising {
namespace {

constexpr double kLeastPart = 0.1;

// The cosine from which on a face is square to the normal.
constexpr double kSquare = 1.0 - 4e-5;

// The level, along a direction, at which the faces that look in it have the largest area.
struct Level {
  double at = 0.0;
  double area = 0.0;
};

Level MainLevel(std::vector<std::pair<double, double>> levels) {
  constexpr double kSameLevel = 1e-4;  // metres
  std::sort(levels.begin(), levels.end());
  Level best;
  for (std::size_t i = 0; i < levels.size();) {
    const double first = levels[i].first;
    double area = 0.0;
    double sum = 0.0;
    for (; i < levels.size() && levels[i].first - first <= kSameLevel; ++i) {
      area += levels[i].second;
      sum += levels[i].second * (levels[i].first - first);
    }
    if (area > best.area) best = {first + sum / area, area};
  }
  return best;
}

// The levels of the two main faces of a plate.
struct Faces {
  Span span;
  bool hasLower = false;
  bool hasUpper = false;
};

Faces FindFaces(Boundary& boundary, const Vector3& normal) {
  constexpr double kLeastPart = 0.3;
  const Mesh& mesh = boundary.Mesh();
  std::vector<std::pair<double, double>> upper;
  std::vector<std::pair<double, double>> lower;
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    const Boundary::Face& facts = boundary.Faces()[face];
    const double cosine = Dot(facts.normal, normal);
    if (std::fabs(cosine) < kSquare) continue;
    // A face that is not quite square counts at its mean level.
    Span level;
    for (const Mesh::Index i : mesh.LoopOf(face, 0)) level.Add(At(mesh.points[i], normal));
    (cosine > 0.0 ? upper : lower).emplace_back(level.Middle(), facts.area);
  }
  const Level top = MainLevel(std::move(upper));
  const Level bottom = MainLevel(std::move(lower));
  Faces faces;
  faces.span = boundary.Along(normal);
  faces.hasLower = bottom.area > kLeastPart * top.area;
  faces.hasUpper = top.area > kLeastPart * bottom.area;
  if (faces.hasLower && faces.hasUpper && top.at - bottom.at < 1e-5) return {faces.span};
  if (faces.hasLower) faces.span.from = bottom.at;
  if (faces.hasUpper) faces.span.to = top.at;
  return faces;
}

// Where one face is not plane and square, the mean thickness replaces the largest one.
Span MeanThickness(const Boundary& boundary, const Faces& faces, const Section& section) {
  Span span = faces.span;
  const std::optional<double> volume = boundary.Volume();
  if (faces.hasLower == faces.hasUpper || !volume) return span;
  const double thickness = std::min(*volume / section.area, span.Length());
  (faces.hasLower ? span.to : span.from) =
      faces.hasLower ? span.from + thickness : span.to - thickness;
  return span;
}

std::optional<Reading> ReadWithOutline(Subject& subject, const PlaneFrame& plane, Outline outer,
                                       const std::vector<Outline>& holes, const Span& span) {
  Contour outline;
  outline.points = std::move(outer);
  Reading reading = MakeSurface(subject, plane, outline, holes, span);
  if (!Measure(subject, reading)) return std::nullopt;
  return reading;
}

// The outline of the larger one of the two faces of a plate.
std::optional<Outline> LargerFace(Boundary& boundary, const PlaneFrame& plane, const Span& span) {
  std::optional<Section> larger;
  for (const double place : {1e-4, 0.9999}) {
    std::optional<Section> section = SectionAt(boundary, plane, span.from + place * span.Length());
    if (!section || section->regionCount != 1) continue;
    if (!larger || section->area > larger->area) larger = std::move(section);
  }
  if (!larger) return std::nullopt;
  return std::move(larger->region.outer);
}

std::optional<Reading> ReadWithSection(Subject& subject, const PlaneFrame& plane,
                                       const Section& section, const Faces& faces) {
  if (section.regionCount != 1) return std::nullopt;
  const Span span = MeanThickness(subject.boundary, faces, section);
  std::optional<Reading> best =
      ReadWithOutline(subject, plane, section.region.outer, section.region.holes, span);
  if (best && !best->fit.isApproximate) return best;
  std::optional<Outline> around = OutlineAroundBevels(subject.boundary, plane, section, faces.span);
  if (!around) around = LargerFace(subject.boundary, plane, faces.span);
  if (!around) return best;
  KeepBetter(best,
             ReadWithOutline(subject, plane, std::move(*around), section.region.holes, faces.span));
  return best;
}

}  // namespace

Reading MakeSurface(const Subject& subject, const PlaneFrame& plane, const Contour& outline,
                    const std::vector<Outline>& holes, const Span& span) {
  Reading reading;
  reading.kind = ElementKind::kSurface;
  SurfaceRegion& surface = reading.surface;
  surface.normal = NormalOf(plane);
  surface.thickness = span.Length();
  PlaneFrame middle = plane;
  middle.origin += (span.Middle() - At(plane.origin, surface.normal)) * surface.normal;
  for (const Point2& p : outline.points) surface.outline.push_back(Lift(middle, p));
  for (const ContourArc& arc : outline.arcs) {
    surface.arcs.push_back({arc.edge, Lift(middle, arc.through)});
  }
  for (const Outline& hole : holes) {
    surface.holes.emplace_back();
    for (const Point2& p : hole) surface.holes.back().push_back(Lift(middle, p));
  }
  const Outline flat = outline.arcs.empty() ? outline.points : Flatten(outline);
  const Proportions proportions = ProportionsOfSurface(flat, holes, surface.thickness);
  reading.suitability = SuitabilityOfSurface(subject.role, proportions);
  reading.size = surface.thickness;
  return reading;
}

std::optional<Reading> ReadSurface(Subject& subject, const Vector3& normal) {
  const PlaneFrame plane = FrameAcross(normal, {});
  const Faces faces = FindFaces(subject.boundary, NormalOf(plane));
  const Span& span = faces.span;
  if (!(span.Length() > 1e-6)) return std::nullopt;
  const std::vector<Section> sections = ScanSections(subject.boundary, plane, span);
  if (sections.empty()) return std::nullopt;
  std::optional<Reading> best = ReadWithSection(subject, plane, sections[0], faces);
  if (best && !best->fit.isApproximate) return best;
  const auto largest =
      std::max_element(sections.begin(), sections.end(), [&](const Section& a, const Section& b) {
        const bool isLongA = a.length >= kLeastPart * span.Length();
        const bool isLongB = b.length >= kLeastPart * span.Length();
        return isLongA != isLongB ? isLongB : a.area < b.area;
      });
  if (largest != sections.begin()) {
    KeepBetter(best, ReadWithSection(subject, plane, *largest, faces));
  }
  return best;
}

}  // namespace KelIFC::building::idealising
