#include <cmath>
#include <numbers>
#include <utility>

#include "kelifc/building/read/curves.h"
#include "kelifc/building/read/items.h"
#include "kelifc/building/read/placements.h"
#include "kelifc/building/read/shells.h"

// The items that do not consist of other items.

namespace KelIFC::building {
namespace {

constexpr double kFullTurn = 2.0 * std::numbers::pi;

using Form = Primitive::Form;

struct PrimitiveRow {
  Entity entity;
  Form form;
  std::array<Attribute, 3> sizes;
};

constexpr PrimitiveRow kPrimitives[] = {
    {Entity::kBlock, Form::kBlock, {Attribute::kXLength, Attribute::kYLength, Attribute::kZLength}},
    {Entity::kRectangularPyramid,
     Form::kPyramid,
     {Attribute::kXLength, Attribute::kYLength, Attribute::kZLength}},
    {Entity::kRightCircularCylinder,
     Form::kCylinder,
     {Attribute::kRadius, Attribute::kRadius, Attribute::kZLength}},
    {Entity::kRightCircularCone,
     Form::kCone,
     {Attribute::kRadius, Attribute::kRadius, Attribute::kZLength}},
    {Entity::kSphere, Form::kSphere, {Attribute::kRadius, Attribute::kRadius, Attribute::kRadius}},
};

// The plane below the surfaces that are parts of one.
Instance BasisOf(Instance surface) {
  for (std::size_t i = 0; i < kMaxCurveDepth; ++i) {
    const Instance basis = surface.Get(Attribute::kBasisSurface).Target();
    if (!basis) break;
    surface = basis;
  }
  return surface;
}

}  // namespace

// A size in metres, 0 if it is unset. False, and `why`, if it is not finite.
bool ItemReader::ReadLength(const Instance& item, Attribute attribute, double& metres,
                            Unreadable& why) const {
  metres = item.Get(attribute).Number(0.0) * context.units.length.metres;
  if (std::abs(metres) <= kLargestReadable) return true;
  why = {LossReason::kNotFinite, item.Number()};
  return false;
}

void ItemReader::ReadExtrusion(const Instance& item, Solid& solid, Unreadable& why) {
  Extrusion extrusion;
  extrusion.profile = profiles.Read(item, Attribute::kSweptArea, why);
  if (extrusion.profile == nullptr) return;
  if (item.Get(Attribute::kEndSweptArea).IsSet()) {
    extrusion.endProfile = profiles.Read(item, Attribute::kEndSweptArea, why);
    if (extrusion.endProfile == nullptr) return;
  }
  const std::optional<Transform3> position = ReadAxes(context, item, Attribute::kPosition, why);
  if (!position) return;
  extrusion.position = *position;
  if (item.Get(Attribute::kDirection).IsSet()) {
    const Instance at = Follow(item, Attribute::kDirection, why);
    if (!at) return;
    const std::optional<Vector3> direction = ReadDirection(at);
    why = {LossReason::kDegenerate, item.Number()};
    if (!direction) return;
    extrusion.direction = *direction;
  }
  if (!ReadLength(item, Attribute::kDepth, extrusion.depth, why)) return;
  if (extrusion.depth < 0.0) {
    extrusion.depth = -extrusion.depth;
    extrusion.direction = -extrusion.direction;
  }
  solid.form = std::move(extrusion);
}

void ItemReader::ReadRevolution(const Instance& item, Solid& solid, Unreadable& why) {
  Revolution revolution;
  revolution.profile = profiles.Read(item, Attribute::kSweptArea, why);
  if (revolution.profile == nullptr) return;
  const std::optional<Transform3> position = ReadAxes(context, item, Attribute::kPosition, why);
  if (!position) return;
  revolution.position = *position;
  const Instance axis = Follow(item, Attribute::kAxis, why);
  if (!axis) return;
  const Instance location = Follow(axis, Attribute::kLocation, why);
  if (!location) return;
  const std::optional<Point3> point = ReadPoint(context, location, why);
  if (!point) return;
  revolution.axisPoint = *point;
  const std::optional<Vector3> direction = ReadDirection(axis.Get(Attribute::kAxis).Target());
  revolution.axis = direction.value_or(Vector3(0.0, 0.0, 1.0));
  revolution.angle = item.Get(Attribute::kAngle).Number(0.0) * context.units.radians;
  why = {LossReason::kNotFinite, item.Number()};
  if (!std::isfinite(revolution.angle)) return;
  if (revolution.angle < 0.0) {
    revolution.angle = -revolution.angle;
    revolution.axis = -revolution.axis;
  }
  revolution.angle = std::fmin(revolution.angle, kFullTurn);
  solid.form = std::move(revolution);
}

void ItemReader::ReadSweptDisk(const Instance& item, Solid& solid, Unreadable& why) {
  SweptDisk disk;
  if (!ReadLength(item, Attribute::kRadius, disk.radius, why)) return;
  if (!ReadLength(item, Attribute::kInnerRadius, disk.innerRadius, why)) return;
  std::optional<SpaceCurve> directrix = ReadDirectrix(context, item, why);
  if (!directrix) return;
  disk.directrix = std::move(*directrix);
  solid.form = std::move(disk);
}

void ItemReader::ReadSweptCurve(const Instance& item, Solid& solid, Unreadable& why) {
  SweptCurve swept;
  swept.profile = profiles.Read(item, Attribute::kSweptArea, why);
  if (swept.profile == nullptr) return;
  const std::optional<Transform3> position = ReadAxes(context, item, Attribute::kPosition, why);
  if (!position) return;
  swept.position = *position;
  std::optional<SpaceCurve> directrix = ReadDirectrix(context, item, why);
  if (!directrix) return;
  swept.directrix = std::move(*directrix);
  const Instance surface = BasisOf(item.Get(Attribute::kReferenceSurface).Target());
  const bool isPlane = surface.GetEntity() == Entity::kPlane;
  if (!isPlane && surface.GetEntity() != Entity::kSurfaceOfLinearExtrusion) {
    why = {LossReason::kUnsupportedItem, item.Number()};
    return;
  }
  const std::optional<Transform3> axes = ReadAxes(context, surface, Attribute::kPosition, why);
  if (!axes) return;
  swept.reference = axes->z;
  if (!isPlane) {
    const std::optional<Vector3> direction =
        ReadDirection(surface.Get(Attribute::kDirection).Target());
    swept.reference = (*axes)(direction.value_or(Vector3(0.0, 0.0, 1.0)));
  }
  solid.form = std::move(swept);
}

void ItemReader::ReadBrep(const Instance& item, Solid& solid, Unreadable& why) {
  const Instance outer = Follow(item, Attribute::kOuter, why);
  if (!outer) return;
  Shells shells;
  std::optional<Mesh> mesh = ReadFaces(context, {outer}, why);
  if (!mesh) return;
  shells.shells.push_back(std::move(*mesh));
  const Value voids = item.Get(Attribute::kVoids);
  for (std::size_t i = 0; i < voids.Size(); ++i) {
    const Instance shell = voids[i].Target();
    why = {LossReason::kDangling, item.Number()};
    if (!shell) return;
    mesh = ReadFaces(context, {shell}, why);
    if (!mesh) return;
    shells.shells.push_back(std::move(*mesh));
  }
  why = {LossReason::kDegenerate, item.Number()};
  if (shells.shells.front().IsEmpty()) return;
  solid.form = std::move(shells);
}

// The face sets of a model, and a shell that is an item by itself, become one mesh.
void ItemReader::ReadSurfaceModel(const Instance& item, Solid& solid, Unreadable& why) {
  std::vector<Instance> sets;
  const Value list = item.Get(Attribute::kShells);
  for (std::size_t i = 0; i < list.Size(); ++i) {
    sets.push_back(list[i].Target());
    why = {LossReason::kDangling, item.Number()};
    if (!sets.back()) return;
  }
  if (item.Get(Attribute::kFaces).IsSet()) sets.push_back(item);
  std::optional<Mesh> mesh = ReadFaces(context, sets, why);
  if (!mesh) return;
  why = {LossReason::kDegenerate, item.Number()};
  if (mesh->IsEmpty()) return;
  Shells shells;
  shells.isSurface = item.GetEntity() != Entity::kClosedShell;
  shells.shells.push_back(std::move(*mesh));
  solid.form = std::move(shells);
}

// The flag says that the normal of the plane points out of the half-space.
void ItemReader::ReadHalfSpace(const Instance& item, Solid& solid, Unreadable& why) {
  const Instance surface = Follow(item, Attribute::kBaseSurface, why);
  if (!surface) return;
  const Instance plane = BasisOf(surface);
  why = {LossReason::kUnsupportedItem, surface.Number()};
  if (plane.GetEntity() != Entity::kPlane) return;
  const Instance placement = Follow(plane, Attribute::kPosition, why);
  if (!placement) return;
  const std::optional<Transform3> axes = ReadAxes(context, placement, why);
  if (!axes) return;
  HalfSpace half;
  half.point = axes->origin;
  half.normal = item.Get(Attribute::kAgreementFlag).Truth(true) ? axes->z : -axes->z;
  if (item.GetEntity() == Entity::kPolygonalBoundedHalfSpace) {
    const std::optional<Transform3> position = ReadAxes(context, item, Attribute::kPosition, why);
    if (!position) return;
    half.position = *position;
    const Instance boundary = Follow(item, Attribute::kBoundary, why);
    if (!boundary) return;
    std::optional<Contour> contour = ReadContour(context, boundary, why);
    if (!contour) return;
    half.boundary = Region{std::move(*contour), {}};
  }
  solid.form = std::move(half);
}

void ItemReader::ReadPrimitive(const Instance& item, Solid& solid, Unreadable& why) {
  for (const PrimitiveRow& row : kPrimitives) {
    if (row.entity != item.GetEntity()) continue;
    Primitive primitive;
    primitive.form = row.form;
    const std::optional<Transform3> position = ReadAxes(context, item, Attribute::kPosition, why);
    if (!position) return;
    primitive.position = *position;
    for (std::size_t i = 0; i < row.sizes.size(); ++i) {
      if (!ReadLength(item, row.sizes[i], primitive.sizes[i], why)) return;
    }
    solid.form = primitive;
  }
}

}  // namespace KelIFC::building
