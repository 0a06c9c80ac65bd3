#ifndef EXPORT_SVG_LINES_H_
#define EXPORT_SVG_LINES_H_

#include <vector>

#include "kelifc/building/building.h"
#include "kelifc/building/mesh.h"
#include "kelifc/building/profile.h"

namespace KelIFC::exporting::svg {

/// A line of a plan, in the world coordinates x and y, in metres.
struct PlanLine {
  Outline points;         ///< of a closed line the first one is not repeated
  bool isClosed = false;  ///< true if the last point is joined to the first one
};

/// The smallest convex polygon that contains the points, counter-clockwise. Empty if all points lie
/// on a line.
Outline ConvexHull(std::vector<Point2> points);

/// The lines that show a solid from above: the rims and the folds of its faces that look upwards.
/// If no face does, the hull of its points.
std::vector<PlanLine> LinesFromAbove(const Mesh& solid);

/// The lines that show an element from above. A straight member that is not upright is shown by
/// the hull of its solid, without the edges inside of its profile.
std::vector<PlanLine> LinesFromAbove(const BuildingElement& element, const Mesh& solid);

}  // namespace KelIFC::exporting::svg

#endif  // EXPORT_SVG_LINES_H_
