#include "kelifc/building/build/idealise_surface.h"

#include <algorithm>
#include <cmath>

#include "kelifc/building/build/idealise_bevel.h"
#include "kelifc/building/build/idealise_envelope.h"
#include "kelifc/building/build/idealise_scan.h"
#include "kelifc/building/build/idealise_solid.h"

namespace KelIFC::building::idealising {
namespace {

// Sections that hold over a smaller part of the thickness come last.
constexpr double kLeastPart = 0.1;

// A face is square to the normal if the cosine of its own normal is at least this: 0.5 degrees.
constexpr double kSquare = 1.0 - 4e-5;

// A position along a direction, and the area of the faces there.
struct Level {
  double at = 0.0;
  double area = 0.0;
};

// The levels of faces, by rising coordinate.
std::vector<Level> MergeLevels(std::vector<std::pair<double, double>> levels) {
  constexpr double kSameLevel = 1e-4;  // metres
  std::sort(levels.begin(), levels.end());
  std::vector<Level> merged;
  for (std::size_t i = 0; i < levels.size();) {
    const double first = levels[i].first;
    double area = 0.0;
    double sum = 0.0;
    for (; i < levels.size() && levels[i].first - first <= kSameLevel; ++i) {
      area += levels[i].second;
      sum += levels[i].second * (levels[i].first - first);
    }
    merged.push_back({first + sum / area, area});
  }
  return merged;
}

// The level of the largest area. Of several solids, the outermost of those that are about as large:
// between the layers of a wall are faces, too.
Level MainLevel(std::vector<std::pair<double, double>> faces, bool isUpper, bool isSeveral) {
  constexpr double kAboutAsLarge = 0.8;
  std::vector<Level> levels = MergeLevels(std::move(faces));
  Level best;
  for (const Level& level : levels) {
    if (level.area > best.area) best = level;
  }
  if (!isSeveral) return best;
  if (isUpper) std::reverse(levels.begin(), levels.end());
  const auto outermost = std::find_if(levels.begin(), levels.end(), [&](const Level& level) {
    return level.area >= kAboutAsLarge * best.area;
  });
  return outermost != levels.end() ? *outermost : best;
}

// The levels of the two main faces of a plate.
struct Faces {
  Span span;
  bool hasLower = false;
  bool hasUpper = false;
};

Faces FindFaces(Boundary& boundary, const Vector3& normal) {
  constexpr double kLeastFace = 0.3;  // of the area of the opposite face
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
  const bool isSeveral = boundary.SolidCount() > 1;
  const Level top = MainLevel(std::move(upper), true, isSeveral);
  const Level bottom = MainLevel(std::move(lower), false, isSeveral);
  Faces faces;
  faces.span = boundary.Along(normal);
  faces.hasLower = bottom.area > kLeastFace * top.area;
  faces.hasUpper = top.area > kLeastFace * bottom.area;
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
  const auto read = [&](std::optional<Outline> around) {
    if (!around) return;
    KeepBetter(best, ReadWithOutline(subject, plane, std::move(*around), section.region.holes,
                                     faces.span));
  };
  Boundary& boundary = subject.boundary;
  std::optional<Outline> around =
      OutlineAroundBevels(boundary, plane, section, faces.span, kBesideFace);
  const bool isBevelled = around.has_value();
  read(isBevelled ? std::move(around) : LargerFace(boundary, plane, faces.span));
  if (isBevelled || !best || !best->fit.isApproximate) return best;
  read(OutlineAroundBevels(boundary, plane, section, faces.span, kBesideRoundedFace));
  return best;
}

Point3 InSpace(const Point2& p) { return {p.x, p.y, 0.0}; }

// A circle of two half circles becomes one of four quarters, so that its points have an area.
Contour WithHalvedArcs(const Contour& contour) {
  Contour halved;
  auto arc = contour.arcs.begin();
  for (std::size_t i = 0; i < contour.points.size(); ++i) {
    halved.points.push_back(contour.points[i]);
    ArcInSpace turn;
    const Point3 start = InSpace(contour.points[i]);
    const Point3 end = InSpace(contour.points[(i + 1) % contour.points.size()]);
    if (arc == contour.arcs.end() || arc->edge != i) continue;
    if (!MakeArc(start, InSpace(arc->through), end, turn)) return contour;
    ++arc;
    const auto at = [&](double part) {
      const Point3 p = turn.Turn(start, part * turn.angle);
      return Point2{p.x, p.y};
    };
    halved.arcs.push_back({halved.points.size() - 1, at(0.25)});
    halved.points.push_back(at(0.5));
    halved.arcs.push_back({halved.points.size() - 1, at(0.75)});
  }
  return halved;
}

}  // namespace

Reading MakeSurface(const Subject& subject, const PlaneFrame& plane, const Contour& contour,
                    const std::vector<Outline>& holes, const Span& span) {
  const Contour outline = contour.points.size() < 3 ? WithHalvedArcs(contour) : contour;
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

std::optional<Reading> ReadSurfaceAround(Subject& subject, const Vector3& normal) {
  const PlaneFrame plane = FrameAcross(normal, {});
  const Span span = subject.boundary.Along(NormalOf(plane));
  std::optional<Section> envelope = EnvelopeOf(subject.boundary, plane, span);
  if (!envelope) return std::nullopt;
  return ReadWithOutline(subject, plane, std::move(envelope->region.outer), envelope->region.holes,
                         span);
}

}  // namespace KelIFC::building::idealising
