#include <cmath>
#include <numbers>

#include "kelifc/building/solid/made_mesh.h"
#include "kelifc/building/solid/rings.h"
#include "kelifc/building/solid/vector_math.h"

namespace KelIFC::building {

namespace {

/// A station of a primitive: a loop at a height. A loop of one point is a tip.
void AddStation(Mesh& mesh, RingSweep& sweep, const Outline& outline, double height,
                const Transform3& map) {
  std::vector<Mesh::Index> ring;
  for (const Point2& p : outline) ring.push_back(AddPoint(mesh, map(Point3(p.x, p.y, height))));
  sweep.rings.push_back(std::move(ring));
}

void AddTip(Mesh& mesh, RingSweep& sweep, const Point3& tip, const Transform3& map) {
  sweep.rings.emplace_back(sweep.loopSizes[0], AddPoint(mesh, map(tip)));
}

Outline RectangleOf(double x, double y) { return {{0.0, 0.0}, {x, 0.0}, {x, y}, {0.0, y}}; }

Outline CircleOf(double radius, std::size_t corners) {
  Outline result;
  for (std::size_t i = 0; i < corners; ++i) {
    const double angle =
        2.0 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(corners);
    result.emplace_back(radius * std::cos(angle), radius * std::sin(angle));
  }
  return result;
}

void AddSphere(Mesh& mesh, RingSweep& sweep, double radius, std::size_t corners,
               const Transform3& map) {
  const std::size_t bands = (corners + 1) / 2;
  AddTip(mesh, sweep, {0.0, 0.0, -radius}, map);
  for (std::size_t i = 1; i < bands; ++i) {
    const double angle =
        std::numbers::pi * (static_cast<double>(i) / static_cast<double>(bands) - 0.5);
    AddStation(mesh, sweep, CircleOf(radius * std::cos(angle), corners), radius * std::sin(angle),
               map);
  }
  AddTip(mesh, sweep, {0.0, 0.0, radius}, map);
}

}  // namespace

MadeMesh MakePrimitive(const Primitive& solid, const Transform3& map, std::size_t maxPoints) {
  const bool isSphere = solid.form == Primitive::Form::kSphere;
  for (std::size_t i = 0; i < (isSphere ? 1 : 3); ++i) {
    if (!(std::abs(solid.sizes[i]) <= kLargestCoordinate)) {
      return MadeMesh(LossReason::kNotFinite);
    }
    if (!(solid.sizes[i] > kWeldDistance)) return MadeMesh(LossReason::kDegenerate);
  }
  const auto [x, y, z] = solid.sizes;
  const bool isFlat =
      solid.form == Primitive::Form::kBlock || solid.form == Primitive::Form::kPyramid;
  const std::size_t corners = isFlat ? 4 : ChordCount(x, 2.0 * std::numbers::pi);
  if (corners * (isSphere ? corners : 2) > maxPoints) return MadeMesh(LossReason::kLimit);
  const Transform3 map3 = Combine(map, solid.position);
  const Outline base = isFlat ? RectangleOf(x, y) : CircleOf(x, corners);
  Mesh mesh;
  RingSweep sweep;
  sweep.loopSizes = {corners};
  if (isSphere) {
    AddSphere(mesh, sweep, x, corners, map3);
  } else {
    AddStation(mesh, sweep, base, 0.0, map3);
    const bool isPrism =
        solid.form == Primitive::Form::kBlock || solid.form == Primitive::Form::kCylinder;
    const Point2 tip = isFlat ? Point2(x / 2.0, y / 2.0) : Point2();
    if (isPrism) {
      AddStation(mesh, sweep, base, z, map3);
    } else {
      AddTip(mesh, sweep, {tip.x, tip.y, z}, map3);
    }
  }
  AddSweep(mesh, sweep);
  return Finish(std::move(mesh));
}

}  // namespace KelIFC::building
