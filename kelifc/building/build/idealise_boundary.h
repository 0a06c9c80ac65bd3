#ifndef KELIFC_BUILDING_BUILD_IDEALISE_BOUNDARY_H_
#define KELIFC_BUILDING_BUILD_IDEALISE_BOUNDARY_H_

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

#include "kelifc/building/build/idealise_frame.h"
#include "kelifc/building/mesh.h"
#include "kelifc/building/solid/body.h"
#include "kelifc/building/solid/distance.h"

namespace KelIFC::building::idealising {

/// The boundary of a body as the idealisation uses it: in coordinates whose origin is the centre of
/// the box of the body, so that products of coordinates keep their precision. What is costly is
/// made at its first use. The body must outlive it.
class Boundary {
 public:
  struct Face {
    Vector3 normal;  ///< unit vector; zero for a face without area
    double area = 0.0;
  };

  explicit Boundary(const EvaluatedBody& body);

  /// False if there are no faces, or a coordinate is not finite. Nothing else may be asked then.
  bool IsUsable() const { return isUsable; }

  /// World coordinates are local coordinates and this displacement.
  const Vector3& Centre() const { return centre; }

  /// The points that faces use.
  const std::vector<Point3>& Points() const { return points; }

  /// The faces. Pairs of equal faces that look at each other are left out, so that solids side by
  /// side form one boundary.
  const KelIFC::Mesh& Mesh();

  /// The normals and areas of the faces of Mesh().
  const std::vector<Face>& Faces();
  double Area();  ///< of all faces

  const SurfaceDistance& Distance();  ///< from Mesh()

  /// How many items the body is made of.
  std::size_t SolidCount() const { return body.solidCount; }

  /// The volume of the body; none if it is not closed or not positive.
  std::optional<double> Volume() const;

  /// How far the points extend along a direction.
  Span Along(const Vector3& direction) const;

 private:
  void MakeFaces();

  const EvaluatedBody& body;
  Vector3 centre;
  bool isUsable = false;
  std::vector<Point3> points;
  std::optional<KelIFC::Mesh> mesh;
  std::vector<Face> faces;
  double area = 0.0;
  std::unique_ptr<SurfaceDistance> distance;
};

/// The vector whose direction is the normal of a face and whose length is its area.
Vector3 AreaVectorOf(const Mesh& mesh, std::size_t face);

}  // namespace KelIFC::building::idealising

#endif  // KELIFC_BUILDING_BUILD_IDEALISE_BOUNDARY_H_
