#include "kelifc/building/build/idealise_ends.h"

#include <algorithm>
#include <vector>

namespace KelIFC::building::idealising {
namespace {

// A face ends a member if the cosine of its normal and the axis is at least this.
constexpr double kLeastCosine = 0.1;

// Faces are in one plane if their normals differ by less than this, and their distance is smaller.
constexpr double kSameNormal = 2e-3;
constexpr double kSamePlane = 1e-3;  // metres

// The part of the section that the faces of an end cover.
constexpr double kCovers = 0.9;
constexpr double kCoversWithSupport = 0.25;

// The faces of an end are compared with at most so many planes, so that the time is linear.
constexpr std::size_t kMostPlanes = 8;

struct EndFaces {
  Vector3 normal;
  Point3 point;
  double area = 0.0;  // seen along the axis
};

// The planes of the faces that look outwards, the largest face of each first.
std::vector<EndFaces> GroupFaces(Boundary& boundary, const Vector3& out) {
  const Mesh& mesh = boundary.Mesh();
  std::vector<EndFaces> faces;
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    const Boundary::Face& facts = boundary.Faces()[face];
    const double cosine = Dot(facts.normal, out);
    if (cosine < kLeastCosine || facts.area < 1e-10) continue;
    faces.push_back({facts.normal, mesh.points[mesh.LoopOf(face, 0)[0]], facts.area * cosine});
  }
  std::stable_sort(faces.begin(), faces.end(),
                   [](const EndFaces& a, const EndFaces& b) { return a.area > b.area; });
  std::vector<EndFaces> planes;
  for (const EndFaces& face : faces) {
    const auto same = std::find_if(planes.begin(), planes.end(), [&](const EndFaces& plane) {
      return Length(face.normal - plane.normal) < kSameNormal &&
             std::fabs(Dot(face.point - plane.point, plane.normal)) < kSamePlane;
    });
    if (same != planes.end()) {
      same->area += face.area;
    } else if (planes.size() < kMostPlanes) {
      planes.push_back(face);
    }
  }
  return planes;
}

bool IsInFront(const Boundary& boundary, const EndFaces& plane) {
  return std::all_of(boundary.Points().begin(), boundary.Points().end(), [&](const Point3& p) {
    return Dot(p - plane.point, plane.normal) < kSamePlane;
  });
}

FoundEnd EndIn(const EndFaces& plane, const Vector3& out) {
  if (Dot(plane.normal, out) > kSquareCosine) return {plane.point, out, true};
  return {plane.point, plane.normal, false};
}

}  // namespace

FoundEnd FindEnd(Boundary& boundary, const Vector3& out, double sectionArea) {
  const std::vector<EndFaces> planes = GroupFaces(boundary, out);
  // Of the planes that cover the section, the outermost: others are inside of the body.
  const EndFaces* end = nullptr;
  for (const EndFaces& plane : planes) {
    if (plane.area < kCovers * sectionArea) continue;
    if (end == nullptr || At(plane.point, out) > At(end->point, out) + kSamePlane) end = &plane;
  }
  if (end != nullptr) return EndIn(*end, out);
  const auto largest =
      std::max_element(planes.begin(), planes.end(),
                       [](const EndFaces& a, const EndFaces& b) { return a.area < b.area; });
  if (largest != planes.end() && largest->area >= kCoversWithSupport * sectionArea &&
      IsInFront(boundary, *largest)) {
    return EndIn(*largest, out);
  }
  return {Point3() + boundary.Along(out).to * out, out, true};
}

}  // namespace KelIFC::building::idealising
