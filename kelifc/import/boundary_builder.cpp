#include "kelifc/import/boundary_builder.h"

#include <algorithm>
#include <utility>

#include "kelifc/geometry/polygon_normal.h"

namespace KelIFC {

namespace {

/// 2 to the power of -23.
constexpr double kNormalTolerance = 1.1920928955078125e-7;

}  // namespace

void BoundaryBuilder::AddBound(Mvector<Point3>& loop, bool isOuter, bool isReversed,
                               bool isTurnedOver) {
  // Of the loop as the file has it; each way of turning it over negates the normal once.
  Vector3 normal = PolygonNormal(loop, kNormalTolerance);
  Normalise(normal);
  if (isReversed) normal = -normal;
  if (isTurnedOver) {
    std::reverse(loop.begin(), loop.end());
    normal = -normal;
  }
  Mvector<int> indices = AddVertices(loop, normal, isReversed);
  if (boundary.faces.size() <= faceIndex) boundary.faces.resize(faceIndex + 1);
  BRepFace& face = boundary.faces[faceIndex];
  if (isOuter) {
    face.outerLoop = std::move(indices);
  } else {
    face.innerLoops.push_back(indices);
  }
}

/// Gives the indices in the order of the face.
Mvector<int> BoundaryBuilder::AddVertices(const Mvector<Point3>& loop, const Vector3& normal,
                                          bool isReversed) {
  const int base = static_cast<int>(boundary.vertices.size());
  const int count = static_cast<int>(loop.size());
  const Vector3 turned = frame.Apply(normal);
  Mvector<int> indices;
  indices.reserve(loop.size());
  for (int i = 0; i < count; ++i) {
    indices.push_back(isReversed ? base + count - 1 - i : base + i);
  }
  for (const Point3& point : loop) boundary.vertices.push_back({frame.Apply(point), turned});
  return indices;
}

}  // namespace KelIFC
