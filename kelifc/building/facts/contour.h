#ifndef KELIFC_BUILDING_FACTS_CONTOUR_H_
#define KELIFC_BUILDING_FACTS_CONTOUR_H_

#include <cstddef>
#include <vector>

#include "kelifc/geometry/point.h"

namespace KelIFC::building {

/// An edge of a contour that is an arc of a circle. Edge i goes from point i to the next one.
struct ContourArc {
  std::size_t edge = 0;
  Point2 through;  ///< a point of the arc between its ends
};

/// A line of straight edges and arcs in the plane, in metres. The first point of a closed contour
/// is not repeated. A full circle is two arcs. Other curves come as chords.
struct Contour {
  std::vector<Point2> points;
  std::vector<ContourArc> arcs;  ///< by rising edge
};

/// A plane region: an outer contour and holes, in any orientation.
struct Region {
  Contour outer;
  std::vector<Contour> holes;
};

/// The largest distance of a chord from its arc, in metres.
constexpr double kChordError = 1e-4;

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_FACTS_CONTOUR_H_
