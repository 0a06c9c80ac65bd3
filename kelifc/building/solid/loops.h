#ifndef KELIFC_BUILDING_SOLID_LOOPS_H_
#define KELIFC_BUILDING_SOLID_LOOPS_H_

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "kelifc/geometry/point.h"

namespace KelIFC::building {

// Regions of the plane, made from directed edges between numbered points. The region is to the left
// of each edge.

using PointLoop = std::vector<std::uint32_t>;
using DirectedEdge = std::pair<std::uint32_t, std::uint32_t>;

/// Loops that directed edges form. Where several loops touch in a point, each turns such that it
/// encloses as little as possible. `isComplete` is false if some edges form no loop.
struct TracedLoops {
  std::vector<PointLoop> loops;
  bool isComplete = true;
};
TracedLoops TraceLoops(const std::vector<Point2>& points, const std::vector<DirectedEdge>& edges);

/// Removes pairs of edges that run in opposite directions between the same points.
void CancelOpposite(std::vector<DirectedEdge>& edges);

/// A loop and the loops of its holes, as indices of loops.
struct NestedLoop {
  std::size_t outer = 0;
  std::vector<std::size_t> holes;
};

/// Sorts clockwise loops (holes) into the counter-clockwise loops that contain them. Loops without
/// area go. A hole that no loop contains goes, and `isComplete` becomes false. It takes n log n
/// time.
std::vector<NestedLoop> NestLoops(const std::vector<Point2>& points,
                                  const std::vector<PointLoop>& loops, bool& isComplete);

/// The signed area of a loop.
double AreaOf(const std::vector<Point2>& points, const PointLoop& loop);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_SOLID_LOOPS_H_
