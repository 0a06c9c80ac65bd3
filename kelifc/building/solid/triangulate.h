#ifndef KELIFC_BUILDING_SOLID_TRIANGULATE_H_
#define KELIFC_BUILDING_SOLID_TRIANGULATE_H_

#include <array>
#include <vector>

#include "kelifc/building/mesh.h"
#include "kelifc/building/solid/cut_ears.h"
#include "kelifc/building/solid/loops.h"

namespace KelIFC::building {

/// Cuts a plane region into counter-clockwise triangles by cutting off ears. The first loop is the
/// outer one, counter-clockwise; the others are holes, clockwise. Holes are joined to the outer
/// loop along horizontal lines, whose ends are appended to `points`. Of a region that crosses
/// itself the triangles overlap. The number of tests is limited to about 100 for each point; beyond
/// that the ears of hostile regions are cut off untested.
std::vector<Triangle2> Triangulate(std::vector<Point2>& points,
                                   const std::vector<PointLoop>& loops);

/// Does the same without additional points: holes are joined to points of other loops. Of a region
/// that crosses itself some triangles are clockwise, so that their signed areas add up to that of
/// the loops. No loop may be empty; the result is empty otherwise.
std::vector<Triangle2> TriangulateCorners(const std::vector<Point2>& points,
                                          const std::vector<PointLoop>& loops);

/// A triangle in space.
using Triangle3 = std::array<Point3, 3>;

/// Adds the triangles of a face. A face that is not quite plane is projected for the choice of the
/// triangles only.
void AppendTriangles(const Mesh& mesh, std::size_t face, std::vector<Triangle3>& triangles);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_SOLID_TRIANGULATE_H_
