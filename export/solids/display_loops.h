#ifndef EXPORT_SOLIDS_DISPLAY_LOOPS_H_
#define EXPORT_SOLIDS_DISPLAY_LOOPS_H_

#include <cstdint>
#include <vector>

#include "kelifc/building/building.h"
#include "kelifc/geometry/point.h"

namespace KelIFC::exporting {

/// What a line of the idealisation shows. The last point of a line that is not an axis is joined to
/// its first point.
enum class LineKind : std::uint8_t {
  kAxis,    ///< the axis of a member
  kRegion,  ///< the outline or a hole of a surface, or the edge of a curved wall
  kOpening  ///< the outline of an opening
};

/// A line of the idealisation in world coordinates.
struct IdealLine {
  std::vector<Point3> points;
  LineKind kind = LineKind::kAxis;
};

/// The lines that show an element as it is idealised: the axis of a member, the outline and the
/// holes of a surface, the edge of the middle surface of a curved wall. Arcs are chords. A body has
/// none.
std::vector<IdealLine> IdealLinesOf(const BuildingElement& element);

/// The outlines of the openings of an element that have one.
std::vector<IdealLine> OpeningLinesOf(const BuildingElement& element);

}  // namespace KelIFC::exporting

#endif  // EXPORT_SOLIDS_DISPLAY_LOOPS_H_
