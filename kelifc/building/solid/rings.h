#ifndef KELIFC_BUILDING_SOLID_RINGS_H_
#define KELIFC_BUILDING_SOLID_RINGS_H_

#include <cstddef>
#include <vector>

#include "kelifc/building/mesh.h"
#include "kelifc/building/solid/slice.h"

namespace KelIFC::building {

/// A region that moves through space: the points of its loops at each station, one after the other,
/// as indices of the mesh. The region is counter-clockwise if one looks against its movement.
struct RingSweep {
  std::vector<std::size_t> loopSizes;  ///< the outer loop first
  std::vector<std::vector<Mesh::Index>> rings;
  bool isRound = false;  ///< the last station is the first one: there are no ends
};

/// The sizes of the loops of a region.
std::vector<std::size_t> LoopSizesOf(const FlatRegion& region);

/// The points of all loops of a region.
std::vector<Point2> PointsOf(const FlatRegion& region);

/// Adds a point and returns its index.
Mesh::Index AddPoint(Mesh& mesh, const Point3& point);

/// Adds the faces between the stations and at both ends. Sides that are not plane are cut into
/// triangles. Sides with points that coincide in one index lose them.
void AddSweep(Mesh& mesh, const RingSweep& sweep);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_SOLID_RINGS_H_
