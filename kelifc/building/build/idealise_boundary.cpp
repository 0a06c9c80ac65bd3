#include "kelifc/building/build/idealise_boundary.h"

#include <algorithm>
#include <tuple>

#include "kelifc/building/build/point_match.h"
#include "kelifc/building/solid/vector_math.h"

namespace KelIFC::building::idealising {
namespace {

// The points of the outer loop of a face as welded indices, turned so that the smallest is first.
// Of the two faces of a pair, one has the same loop in the other direction.
struct FaceKey {
  std::vector<std::size_t> loop;
  bool isReversed = false;
  std::size_t face = 0;

  bool operator<(const FaceKey& other) const {
    return std::tie(loop, isReversed, face) < std::tie(other.loop, other.isReversed, other.face);
  }
};

FaceKey KeyOf(const Mesh& mesh, std::size_t face, const std::vector<std::size_t>& welded) {
  FaceKey key;
  key.face = face;
  for (const Mesh::Index i : mesh.LoopOf(face, 0)) key.loop.push_back(welded[i]);
  std::rotate(key.loop.begin(), std::min_element(key.loop.begin(), key.loop.end()), key.loop.end());
  if (key.loop.size() > 2 && key.loop[1] > key.loop.back()) {
    std::reverse(key.loop.begin() + 1, key.loop.end());
    key.isReversed = true;
  }
  return key;
}

// Marks the faces without holes that occur once in each direction.
std::vector<char> FindTouching(const Mesh& mesh, const std::vector<Point3>& local) {
  const std::vector<std::size_t> welded = Weld(local, 1e-6);
  std::vector<FaceKey> keys;
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    if (mesh.LoopCount(face) == 1) keys.push_back(KeyOf(mesh, face, welded));
  }
  std::sort(keys.begin(), keys.end());
  std::vector<char> isTouching(mesh.FaceCount(), 0);
  for (std::size_t i = 0; i + 1 < keys.size(); ++i) {
    if (keys[i].loop != keys[i + 1].loop || keys[i].isReversed == keys[i + 1].isReversed) continue;
    isTouching[keys[i].face] = 1;
    isTouching[keys[i + 1].face] = 1;
    ++i;
  }
  return isTouching;
}

Mesh Without(const Mesh& mesh, const std::vector<char>& isLeftOut) {
  Mesh rest;
  rest.points = mesh.points;
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    if (isLeftOut[face] != 0) continue;
    rest.BeginFace();
    for (std::size_t loop = 0; loop < mesh.LoopCount(face); ++loop) {
      const Mesh::Loop indices = mesh.LoopOf(face, loop);
      rest.AddLoop(indices.first, indices.count);
    }
  }
  return rest;
}

std::vector<char> FindUsed(const Mesh& mesh) {
  std::vector<char> isUsed(mesh.points.size(), 0);
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    for (std::size_t loop = 0; loop < mesh.LoopCount(face); ++loop) {
      for (const Mesh::Index i : mesh.LoopOf(face, loop)) isUsed[i] = 1;
    }
  }
  return isUsed;
}

}  // namespace

Vector3 AreaVectorOf(const Mesh& mesh, std::size_t face) {
  Vector3 sum;
  for (std::size_t loop = 0; loop < mesh.LoopCount(face); ++loop) {
    const Mesh::Loop indices = mesh.LoopOf(face, loop);
    for (std::size_t i = 1; i + 1 < indices.size(); ++i) {
      const Point3& first = mesh.points[indices[0]];
      sum = sum + Cross(mesh.points[indices[i]] - first, mesh.points[indices[i + 1]] - first);
    }
  }
  return sum / 2.0;
}

Boundary::Boundary(const EvaluatedBody& evaluated) : body(evaluated) {
  if (body.mesh.IsEmpty()) return;
  const std::vector<char> isUsed = FindUsed(body.mesh);
  BuildingBox box;
  for (std::size_t i = 0; i < isUsed.size(); ++i) {
    if (isUsed[i] == 0) continue;
    const Point3& p = body.mesh.points[i];
    if (!building::IsUsable(p)) return;
    box.min = {std::min(box.min.x, p.x), std::min(box.min.y, p.y), std::min(box.min.z, p.z)};
    box.max = {std::max(box.max.x, p.x), std::max(box.max.y, p.y), std::max(box.max.z, p.z)};
  }
  if (box.IsEmpty()) return;
  centre = (FromOrigin(box.min) + FromOrigin(box.max)) * 0.5;
  points.reserve(isUsed.size());
  for (std::size_t i = 0; i < isUsed.size(); ++i) {
    if (isUsed[i] != 0) points.push_back(body.mesh.points[i] + -centre);
  }
  isUsable = true;
}

const Mesh& Boundary::Mesh() {
  if (mesh) return *mesh;
  mesh = body.mesh;
  for (Point3& p : mesh->points) p = p + -centre;
  if (body.solidCount <= 1) return *mesh;
  const std::vector<char> isTouching = FindTouching(*mesh, mesh->points);
  if (std::count(isTouching.begin(), isTouching.end(), 0) <
      static_cast<std::ptrdiff_t>(isTouching.size())) {
    mesh = Without(*mesh, isTouching);
  }
  return *mesh;
}

void Boundary::MakeFaces() {
  const KelIFC::Mesh& local = Mesh();
  faces.reserve(local.FaceCount());
  for (std::size_t face = 0; face < local.FaceCount(); ++face) {
    const Vector3 vector = AreaVectorOf(local, face);
    faces.push_back({Unit(vector), Length(vector)});
    area += faces.back().area;
  }
}

const std::vector<Boundary::Face>& Boundary::Faces() {
  if (faces.empty()) MakeFaces();
  return faces;
}

double Boundary::Area() {
  Faces();
  return area;
}

const SurfaceDistance& Boundary::Distance() {
  if (!distance) distance = std::make_unique<SurfaceDistance>(Mesh());
  return *distance;
}

std::optional<double> Boundary::Volume() const {
  if (!body.isClosed || !(body.volume > 1e-12) || !std::isfinite(body.volume)) return std::nullopt;
  return body.volume;
}

Span Boundary::Along(const Vector3& direction) const {
  Span span;
  for (const Point3& p : points) span.Add(At(p, direction));
  return span;
}

}  // namespace KelIFC::building::idealising
