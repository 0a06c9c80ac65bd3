#ifndef EXPORT_SOLIDS_DISPLAY_LOOPS_H_
#define EXPORT_SOLIDS_DISPLAY_LOOPS_H_

#include <vector>

#include "kelifc/building/building.h"
#include "kelifc/geometry/point.h"

namespace KelIFC::exporting {

/// A line of the idealisation in world coordinates.
struct IdealLine {
  std::vector<Point3> points;
  bool isClosed = false;  ///< true if the last point is joined to the first one
};

/// The lines that show an element as it is idealised: the axis of a member (open), the outline and
/// the holes of a surface (closed), the edge of the middle surface of a curved wall (closed). Arcs
/// are chords. A body has none.
std::vector<IdealLine> IdealLinesOf(const BuildingElement& element);

}  // namespace KelIFC::exporting

#endif  // EXPORT_SOLIDS_DISPLAY_LOOPS_H_
