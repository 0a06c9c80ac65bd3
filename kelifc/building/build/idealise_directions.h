#ifndef KELIFC_BUILDING_BUILD_IDEALISE_DIRECTIONS_H_
#define KELIFC_BUILDING_BUILD_IDEALISE_DIRECTIONS_H_

#include <cstddef>
#include <optional>
#include <vector>

#include "kelifc/building/build/idealise_boundary.h"

namespace KelIFC::building::idealising {

/// A line through space, in which many edges of a boundary run or many faces look. Its unit vector
/// has an arbitrary sign.
struct Direction {
  Vector3 vector;
  double length = 0.0;  ///< of the edges that run in this direction, each counted at both faces
  double across = 0.0;  ///< the area of the faces square to it
  double beside = 0.0;  ///< the area of the faces parallel to it
};

/// The directions of a boundary that an element may have been swept along: `hints`, which come
/// first, then those of the longest edges, then those of the largest faces. At most
/// kMostDirections. Directions within half a degree of each other count as one.
std::vector<Direction> FindDirections(Boundary& boundary, const std::vector<Vector3>& hints);

constexpr std::size_t kMostDirections = 10;

/// The normals in which the largest part of the surface looks, at most so many, the largest first.
/// Opposite normals are one.
std::vector<Vector3> LargestNormals(Boundary& boundary, std::size_t most);

/// The direction in which the edges have the greatest length together; none if there are no edges.
std::optional<Vector3> MainEdgeDirection(Boundary& boundary);

}  // namespace KelIFC::building::idealising

#endif  // KELIFC_BUILDING_BUILD_IDEALISE_DIRECTIONS_H_
