#ifndef KELIFC_BUILDING_SOLID_DISTANCE_H_
#define KELIFC_BUILDING_SOLID_DISTANCE_H_

#include <memory>

#include "kelifc/building/mesh.h"

namespace KelIFC::building {

/// Answers how far points are from the surface of a mesh, and on which side. It is built in
/// n log n time, and a question costs about log n. It refers to the mesh, which must outlive it.
class SurfaceDistance {
 public:
  explicit SurfaceDistance(const Mesh& mesh);
  ~SurfaceDistance();

  /// The distance of a point from the nearest face; infinity for an empty mesh.
  double To(const Point3& point) const;

  /// True if the point is inside of the closed mesh or on its surface within `tolerance`.
  bool Contains(const Point3& point, double tolerance) const;

  /// How far the point is outside: 0 if it is inside.
  double Outside(const Point3& point) const { return Contains(point, 0.0) ? 0.0 : To(point); }

 private:
  struct Tree;
  std::unique_ptr<const Tree> tree;
};

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_SOLID_DISTANCE_H_
