#ifndef KELIFC_TESTS_BUILDING_SOLID_SOLID_SAMPLES_H_
#define KELIFC_TESTS_BUILDING_SOLID_SOLID_SAMPLES_H_

#include <memory>
#include <utility>
#include <vector>

#include "kelifc/building/facts/solid_facts.h"
#include "kelifc/building/mesh.h"
#include "kelifc/building/solid/body.h"

namespace KelIFC::building {

// Shapes of the tests of solids.

inline Contour ContourOf(std::vector<Point2> points) { return {std::move(points), {}}; }

inline Contour Rectangle(double x0, double y0, double x1, double y1) {
  return ContourOf({{x0, y0}, {x1, y0}, {x1, y1}, {x0, y1}});
}

inline ProfilePointer ProfileOf(std::vector<Region> regions) {
  auto profile = std::make_shared<ProfileFacts>();
  profile->id = 7;
  profile->regions = std::move(regions);
  return profile;
}

inline ProfilePointer RectangleProfile(double x0, double y0, double x1, double y1) {
  return ProfileOf({{Rectangle(x0, y0, x1, y1), {}}});
}

template <typename Form>
SolidPointer SolidOf(Form form, std::size_t id = 42) {
  auto solid = std::make_shared<Solid>();
  solid->id = id;
  solid->form = std::move(form);
  return solid;
}

inline Transform3 At(double x, double y, double z) {
  Transform3 map;
  map.origin = {x, y, z};
  return map;
}

/// A prism over a contour, along z.
inline SolidPointer Prism(ProfilePointer profile, double depth, const Transform3& position = {}) {
  Extrusion form;
  form.profile = std::move(profile);
  form.position = position;
  form.depth = depth;
  return SolidOf(form);
}

inline SolidPointer Block(const Point3& min, const Point3& max) {
  return Prism(RectangleProfile(min.x, min.y, max.x, max.y), max.z - min.z, At(0.0, 0.0, min.z));
}

inline SolidPointer Operation(BooleanOperation operation, SolidPointer first, SolidPointer second) {
  return SolidOf(BooleanResult{operation, std::move(first), std::move(second)}, 50);
}

inline SolidPointer Minus(SolidPointer first, SolidPointer second) {
  return Operation(BooleanOperation::kDifference, std::move(first), std::move(second));
}

/// The half-space below a plane whose normal is given.
inline HalfSpace Below(const Point3& point, const Vector3& normal) {
  HalfSpace form;
  form.point = point;
  form.normal = normal;
  return form;
}

inline BodyResult Evaluate(const SolidPointer& solid) {
  return EvaluateBody({solid}, Transform3());
}

/// A box of six faces of four points each.
inline Mesh BoxMesh(const Point3& min, const Point3& max) {
  Mesh mesh;
  for (const double z : {min.z, max.z}) {
    mesh.points.insert(
        mesh.points.end(),
        {{min.x, min.y, z}, {max.x, min.y, z}, {max.x, max.y, z}, {min.x, max.y, z}});
  }
  for (const auto& face : std::vector<std::vector<Mesh::Index>>{
           {3, 2, 1, 0}, {4, 5, 6, 7}, {0, 1, 5, 4}, {1, 2, 6, 5}, {2, 3, 7, 6}, {3, 0, 4, 7}}) {
    mesh.AddFace(face);
  }
  return mesh;
}

/// A square tube along z: 2 by 2 m outside, 1 by 1 m inside, 3 m long. Its volume is 9.
inline Mesh TubeMesh() {
  const Region region = {Rectangle(0.0, 0.0, 2.0, 2.0), {Rectangle(0.5, 0.5, 1.5, 1.5)}};
  return Evaluate(Prism(ProfileOf({region}), 3.0)).body.mesh;
}

}  // namespace KelIFC::building

#endif  // KELIFC_TESTS_BUILDING_SOLID_SOLID_SAMPLES_H_
