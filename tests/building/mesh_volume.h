#ifndef TESTS_BUILDING_MESH_VOLUME_H_
#define TESTS_BUILDING_MESH_VOLUME_H_

#include "kelifc/building/mesh.h"
#include "kelifc/building/triangulation.h"

namespace KelIFC {

/// The volume of a closed mesh, in cubic metres.
inline double VolumeOf(const Mesh& mesh) {
  double volume = 0.0;
  for (const MeshTriangle& t : TrianglesOf(mesh)) {
    const Point3& a = mesh.points[t.corners[0]];
    const Vector3 b = mesh.points[t.corners[1]] - a;
    const Vector3 c = mesh.points[t.corners[2]] - a;
    volume += Dot(a - Point3(), Cross(b, c)) / 6.0;
  }
  return volume;
}

}  // namespace KelIFC

#endif  // TESTS_BUILDING_MESH_VOLUME_H_
