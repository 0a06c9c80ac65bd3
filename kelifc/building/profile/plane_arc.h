#ifndef KELIFC_BUILDING_PROFILE_PLANE_ARC_H_
#define KELIFC_BUILDING_PROFILE_PLANE_ARC_H_

#include <cstddef>
#include <optional>
#include <vector>

#include "kelifc/building/facts/contour.h"

namespace KelIFC::building {

/// An arc of a circle in the plane.
struct PlaneArc {
  Point2 centre;
  double radius = 0.0;
  double start = 0.0;  ///< angle of the start, in radians
  double sweep = 0.0;  ///< in radians, positive if counter-clockwise

  /// The point at an angle of `start` plus a fraction of `sweep`.
  Point2 At(double fraction) const;
};

/// The arc from `start` over `through` to `end`. None if the three points lie on a line within
/// 1e-9 m.
std::optional<PlaneArc> ArcThrough(const Point2& start, const Point2& through, const Point2& end);

/// The number of equal chords of an arc such that no chord is farther than `error` from it. A full
/// circle has at least 38 chords, and an arc has at most `limit`.
std::size_t ChordCount(double radius, double sweep, double error, std::size_t limit);

/// Calls visit(start, end, arc) for each edge of a closed contour. `arc` is a std::optional, which
/// is empty for a straight edge.
template <typename Visit>
void ForEachEdge(const Contour& contour, Visit&& visit) {
  const std::size_t count = contour.points.size();
  auto arc = contour.arcs.begin();
  for (std::size_t i = 0; i < count; ++i) {
    const Point2& start = contour.points[i];
    const Point2& end = contour.points[(i + 1) % count];
    while (arc != contour.arcs.end() && arc->edge < i) ++arc;
    const bool isArc = arc != contour.arcs.end() && arc->edge == i;
    visit(start, end, isArc ? ArcThrough(start, arc->through, end) : std::nullopt);
  }
}

/// The points of a contour and of its arcs cut into chords. The number of points is bounded: an
/// arc has at most 4096 chords, and all arcs together have about a million.
std::vector<Point2> ChordsOf(const Contour& contour, double error);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_PROFILE_PLANE_ARC_H_
