#ifndef KELIFC_BUILDING_SOLID_SLICE_H_
#define KELIFC_BUILDING_SOLID_SLICE_H_

#include <vector>

#include "kelifc/building/mesh.h"
#include "kelifc/building/profile.h"
#include "kelifc/building/solid/loops.h"

namespace KelIFC::building {

/// A coordinate system of a plane in space. x and y are unit vectors, square to each other.
struct PlaneFrame {
  Point3 origin;
  Vector3 x{1.0, 0.0, 0.0};
  Vector3 y{0.0, 1.0, 0.0};
};

/// A plane region bounded by straight edges: an outer loop (counter-clockwise) and its holes
/// (clockwise).
struct FlatRegion {
  Outline outer;
  std::vector<Outline> holes;
};

/// The regions in which a plane cuts a closed mesh, in the coordinates of the plane, the largest
/// first. Collinear points are merged within `tolerance` metres. The result is empty if the cut has
/// no area, or if its edges do not form loops.
std::vector<FlatRegion> Slice(const Mesh& mesh, const PlaneFrame& plane, double tolerance = 1e-7);

/// Makes regions of loops between numbered points, the largest first. Collinear points are merged
/// within `tolerance`. `isComplete` becomes false if a hole lies in no region.
std::vector<FlatRegion> RegionsOfLoops(const std::vector<Point2>& points,
                                       const std::vector<PointLoop>& loops, double tolerance,
                                       bool& isComplete);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_SOLID_SLICE_H_
