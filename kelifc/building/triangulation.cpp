#include "kelifc/building/triangulation.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>

#include "kelifc/building/solid/loops.h"
#include "kelifc/building/solid/triangulate.h"
#include "kelifc/building/solid/vector_math.h"

namespace KelIFC {
namespace {

/// Makes the triangles of one face after the other. It keeps its memory for the next face.
class FaceTriangulation {
 public:
  explicit FaceTriangulation(const Mesh& someMesh) : mesh(someMesh) {}

  void Append(std::size_t face, std::vector<MeshTriangle>& triangles) {
    if (mesh.LoopCount(face) == 0 || !IsValid(mesh.LoopOf(face, 0))) return;
    const Mesh::Loop outer = mesh.LoopOf(face, 0);
    const Vector3 normal = building::Unit(building::AreaVectorOf(mesh, outer));
    if (Length(normal) == 0.0) return;
    const auto number = static_cast<Mesh::Index>(face);
    if (outer.size() == 3 && mesh.LoopCount(face) == 1) {
      triangles.push_back({{outer[0], outer[1], outer[2]}, number});
      return;
    }
    Project(face, normal);
    for (const building::Triangle2& t : building::TriangulateCorners(points, loops)) {
      triangles.push_back({{numbers[t[0]], numbers[t[1]], numbers[t[2]]}, number});
    }
  }

 private:
  bool IsValid(const Mesh::Loop& loop) const {
    return loop.size() >= 3 && std::all_of(loop.begin(), loop.end(), [&](Mesh::Index p) {
             return p < mesh.points.size() && building::IsUsable(mesh.points[p]);
           });
  }

  /// Maps the loops to the plane of the face. Loops that cannot be holes are left out.
  void Project(std::size_t face, const Vector3& normal) {
    points.clear();
    numbers.clear();
    loops.clear();
    const building::Projection plane(mesh.points[mesh.LoopOf(face, 0)[0]], normal);
    for (std::size_t i = 0; i < mesh.LoopCount(face); ++i) {
      const Mesh::Loop loop = mesh.LoopOf(face, i);
      if (!IsValid(loop)) continue;
      building::PointLoop& result = loops.emplace_back();
      for (const Mesh::Index p : loop) {
        result.push_back(static_cast<std::uint32_t>(points.size()));
        points.push_back(plane(mesh.points[p]));
        numbers.push_back(p);
      }
      const bool isHole = i > 0;
      if (isHole && building::AreaOf(points, result) > 0.0) {
        std::reverse(result.begin(), result.end());
      }
    }
  }

  const Mesh& mesh;
  std::vector<Point2> points;
  std::vector<Mesh::Index> numbers;  // by point: its index in the mesh
  std::vector<building::PointLoop> loops;
};

}  // namespace

std::vector<MeshTriangle> TrianglesOf(const Mesh& mesh) {
  std::vector<MeshTriangle> triangles;
  FaceTriangulation faces(mesh);
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) faces.Append(face, triangles);
  return triangles;
}

}  // namespace KelIFC
