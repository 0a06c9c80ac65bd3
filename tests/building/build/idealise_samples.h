#ifndef KELIFC_TESTS_BUILDING_BUILD_IDEALISE_SAMPLES_H_
#define KELIFC_TESTS_BUILDING_BUILD_IDEALISE_SAMPLES_H_

#include <utility>
#include <vector>

#include "kelifc/building/build/idealise.h"
#include "kelifc/building/facts/product_facts.h"
#include "kelifc/building/solid/body.h"

#include "tests/building/solid/solid_samples.h"

namespace KelIFC::building {

/// A product with a body, and what it is idealised as.
struct Sample {
  ProductFacts product;
  EvaluatedBody body;

  explicit Sample(std::vector<SolidPointer> items, const Transform3& placement = {}) {
    product.items = std::move(items);
    product.placement = placement;
    body = EvaluateBody(product.items, placement).body;
  }

  /// By the facts of the solid.
  Idealisation ByFacts(ElementRole role) const { return Idealise({&body, &product, role}); }

  /// By the boundary alone.
  Idealisation BySlices(ElementRole role) const { return Idealise({&body, nullptr, role}); }
};

/// A prism along a direction of its coordinates.
inline SolidPointer PrismAlong(ProfilePointer profile, const Vector3& direction, double depth,
                               const Transform3& position = {}) {
  Extrusion form;
  form.profile = std::move(profile);
  form.position = position;
  form.direction = direction;
  form.depth = depth;
  return SolidOf(form);
}

/// A prism whose profile lies in the plane of world x and z, and which runs along world y.
inline SolidPointer PrismAlongY(ProfilePointer profile, double depth) {
  Transform3 position;
  position.y = {0.0, 0.0, 1.0};
  position.z = {0.0, 1.0, 0.0};
  position.x = {1.0, 0.0, 0.0};
  return Prism(std::move(profile), depth, position);
}

/// A prism whose profile lies in the plane of world y and z, and which runs along world x.
inline SolidPointer PrismAlongX(ProfilePointer profile, double depth) {
  Transform3 position;
  position.x = {0.0, 1.0, 0.0};
  position.y = {0.0, 0.0, 1.0};
  position.z = {1.0, 0.0, 0.0};
  return Prism(std::move(profile), depth, position);
}

/// A body that was read as a boundary only.
inline Sample SampleOf(Mesh mesh) {
  Sample sample({});
  sample.body.box = BoxOf(mesh);
  sample.body.volume = VolumeOf(mesh);
  sample.body.isClosed = IsClosed(mesh);
  sample.body.solidCount = 1;
  sample.body.mesh = std::move(mesh);
  return sample;
}

/// The boundary between sections with the same number of points, of which the first looks back and
/// the last looks forward. The sections are counter-clockwise seen from the end.
inline Mesh LoftOf(const std::vector<std::vector<Point3>>& sections) {
  Mesh mesh;
  const auto count = static_cast<Mesh::Index>(sections[0].size());
  for (const auto& section : sections) {
    mesh.points.insert(mesh.points.end(), section.begin(), section.end());
  }
  const auto last = static_cast<Mesh::Index>(mesh.points.size()) - count;
  std::vector<Mesh::Index> start;
  std::vector<Mesh::Index> end;
  for (Mesh::Index i = 0; i < count; ++i) {
    start.push_back(count - 1 - i);
    end.push_back(last + i);
  }
  mesh.AddFace(start);
  mesh.AddFace(end);
  for (Mesh::Index first = 0; first < last; first += count) {
    for (Mesh::Index i = 0; i < count; ++i) {
      const Mesh::Index next = (i + 1) % count;
      mesh.AddFace(std::vector<Mesh::Index>{first + i, first + next, first + count + next,
                                            first + count + i});
    }
  }
  return mesh;
}

/// A profile of one contour.
inline ProfilePointer PolygonProfile(std::vector<Point2> points) {
  return ProfileOf({{ContourOf(std::move(points)), {}}});
}

}  // namespace KelIFC::building

#endif  // KELIFC_TESTS_BUILDING_BUILD_IDEALISE_SAMPLES_H_
