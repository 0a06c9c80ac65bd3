#include "kelifc/import/shape/boundary_builder.h"

#include <algorithm>
#include <utility>

#include "kelifc/geometry/polygon_normal.h"

namespace KelIFC {

namespace {

/// For normals of loops: 2 to the power of -23.
constexpr double kNormalTolerance = 1.1920928955078125e-7;

/// Returns `count` indices that ascend from `base`, or descend to it.
Mvector<int> Indices(std::size_t base, std::size_t count, bool isReversed) {
  Mvector<int> indices;
  indices.resize(count);
  int next = static_cast<int>(isReversed ? base + count - 1 : base);
  for (int& index : indices) index = isReversed ? next-- : next++;
  return indices;
}

}  // namespace

void BoundaryBuilder::AddBound(Mvector<Point3>& loop, bool isOuter, bool isReversed,
                               bool isTurnedOver) {
  // This is the normal of the loop as it is in the file. Each reversal negates it once.
  Vector3 normal = PolygonNormal(loop, kNormalTolerance, plane);
  Normalise(normal);
  if (isReversed) normal = -normal;
  if (isTurnedOver) {
    std::reverse(loop.begin(), loop.end());
    normal = -normal;
  }
  Mvector<int> indices = Indices(boundary.vertices.size(), loop.size(), isReversed);
  AddVertices(loop, normal);
  if (boundary.faces.size() <= faceIndex) boundary.faces.push_back(BRepFace());
  BRepFace& face = boundary.faces[faceIndex];
  if (isOuter) {
    face.outerLoop = std::move(indices);
  } else {
    face.innerLoops.push_back(indices);
  }
}

void BoundaryBuilder::AddVertices(const Mvector<Point3>& loop, const Vector3& normal) {
  for (const Point3& point : loop) boundary.vertices.push_back({point, normal});
}

}  // namespace KelIFC
