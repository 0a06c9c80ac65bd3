#include "export/solids/display_loops.h"

#include <cstddef>
#include <utility>

#include "export/solids/arc_chords.h"

namespace KelIFC::exporting {
namespace {

std::vector<Point3> PointsOfCurve(CurveForm form, const std::vector<Point3>& points) {
  if (form != CurveForm::kArc || points.size() != 3) return points;
  std::vector<Point3> chords{points[0]};
  AppendArc(chords, points[0], points[1], points[2]);
  return chords;
}

std::vector<Point3> PointsOfOutline(const SurfaceRegion& surface) {
  const std::vector<Point3>& outline = surface.outline;
  std::vector<Point3> points;
  std::size_t arc = 0;
  for (std::size_t i = 0; i < outline.size(); ++i) {
    points.push_back(outline[i]);
    while (arc < surface.arcs.size() && surface.arcs[arc].edge < i) ++arc;
    if (arc == surface.arcs.size() || surface.arcs[arc].edge != i) continue;
    AppendArc(points, outline[i], surface.arcs[arc].through, outline[(i + 1) % outline.size()]);
    points.pop_back();  // the next corner
  }
  return points;
}

/// The base line of a curved wall, and its upper edge back.
std::vector<Point3> EdgeOfWall(const WallSweep& sweep) {
  std::vector<Point3> points = PointsOfCurve(sweep.curve, sweep.points);
  for (std::size_t i = points.size(); i-- > 0;) {
    points.push_back(points[i] + sweep.height * sweep.direction);
  }
  return points;
}

}  // namespace

std::vector<IdealLine> IdealLinesOf(const BuildingElement& element) {
  std::vector<IdealLine> lines;
  if (element.member) {
    lines.push_back(
        {PointsOfCurve(element.member->curve, element.member->points), LineKind::kAxis});
  } else if (element.surface && element.surface->sweep) {
    lines.push_back({EdgeOfWall(*element.surface->sweep), LineKind::kRegion});
  } else if (element.surface) {
    lines.push_back({PointsOfOutline(*element.surface), LineKind::kRegion});
    for (const std::vector<Point3>& hole : element.surface->holes) {
      lines.push_back({hole, LineKind::kRegion});
    }
  }
  return lines;
}

std::vector<IdealLine> OpeningLinesOf(const BuildingElement& element) {
  std::vector<IdealLine> lines;
  for (const BuildingOpening& opening : element.openings) {
    if (opening.outline.size() > 2) lines.push_back({opening.outline, LineKind::kOpening});
  }
  return lines;
}

}  // namespace KelIFC::exporting
