#include <algorithm>
#include <cstddef>

#include "kelifc/geometry/polygon_normal.h"
#include "kelifc/import/face_facts.h"

namespace KelIFC {

namespace {

/// 2 to the power of -23.
constexpr double kNormalTolerance = 1.1920928955078125e-7;

/// The normal of a loop whose points stand in the order of the file.
Vector3 NormalOf(const BoundFacts& bound) {
  Vector3 normal = PolygonNormal(bound.points, kNormalTolerance);
  Normalise(normal);
  return bound.isReversed ? -normal : normal;
}

/// Appends the vertices of a loop and gives their indices in the order of the face.
Mvector<int> AddLoop(const BoundFacts& bound, const Vector3& normal, const Isometry3& frame,
                     BRep& boundary) {
  const int base = static_cast<int>(boundary.vertices.size());
  const int count = static_cast<int>(bound.points.size());
  const Vector3 turned = frame.Apply(normal);
  Mvector<int> loop;
  loop.reserve(bound.points.size());
  for (int i = 0; i < count; ++i) {
    BRepVertex vertex;
    vertex.position = frame.Apply(bound.points[static_cast<std::size_t>(i)]);
    vertex.normal = turned;
    boundary.vertices.push_back(vertex);
    loop.push_back(bound.isReversed ? base + count - 1 - i : base + i);
  }
  return loop;
}

void AddPass(FaceFacts& face, bool isTurnedOver, const Isometry3& frame, BRep& boundary) {
  const std::size_t faceIndex = boundary.faces.size();
  for (BoundFacts& bound : face.bounds) {
    Vector3 normal = NormalOf(bound);
    if (isTurnedOver) {
      std::reverse(bound.points.begin(), bound.points.end());
      normal = -normal;
    }
    const Mvector<int> loop = AddLoop(bound, normal, frame, boundary);
    if (boundary.faces.size() <= faceIndex) boundary.faces.resize(faceIndex + 1);
    BRepFace& made = boundary.faces[faceIndex];
    if (bound.isOuter) {
      made.outerLoop = loop;
    } else {
      made.innerLoops.push_back(loop);
    }
  }
}

}  // namespace

void CaptureFace(FaceFacts face, const Isometry3& frame, BRep& boundary) {
  AddPass(face, false, frame, boundary);
  if (face.isSurface) AddPass(face, true, frame, boundary);
}

}  // namespace KelIFC
