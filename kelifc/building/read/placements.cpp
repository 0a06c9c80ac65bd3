#include "kelifc/building/read/placements.h"

#include <cmath>

namespace KelIFC::building {
namespace {

// Directions that differ by less than this angle, in radians, count as parallel.
constexpr double kParallel = 1e-9;

bool IsUsable(const Vector3& v) {
  return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

bool IsUsable(const Transform3& map) {
  return IsUsable(map.x) && IsUsable(map.y) && IsUsable(map.z) && IsReadable(map.origin);
}

std::optional<Vector3> UnitVector(Vector3 v) {
  const double largest = std::fmax(std::fmax(std::abs(v.x), std::abs(v.y)), std::abs(v.z));
  if (!(largest > 0.0) || !std::isfinite(largest)) return std::nullopt;
  v = v / largest;
  return v / Length(v);
}

std::optional<Vector3> SquareTo(const Vector3& z, const Vector3& v) {
  if (Length(Cross(z, v)) < kParallel) return std::nullopt;
  return UnitVector(v + -Dot(v, z) * z);
}

}  // namespace

bool IsReadable(const Point3& p) {
  return std::abs(p.x) <= kLargestReadable && std::abs(p.y) <= kLargestReadable &&
         std::abs(p.z) <= kLargestReadable;
}

std::optional<Point3> ReadPoint(ReadContext& context, const Instance& point, Unreadable& why) {
  if (point.GetEntity() != Entity::kCartesianPoint) {
    why = {LossReason::kUnsupportedItem, point.Number()};
    return std::nullopt;
  }
  const Value coordinates = point.Get(Attribute::kCoordinates);
  const double scale = context.units.length.metres;
  const Point3 result{coordinates[0].Number(0.0) * scale, coordinates[1].Number(0.0) * scale,
                      coordinates[2].Number(0.0) * scale};
  if (IsReadable(result)) return result;
  why = {LossReason::kNotFinite, point.Number()};
  return std::nullopt;
}

std::optional<Vector3> ReadDirection(const Instance& direction) {
  if (direction.GetEntity() != Entity::kDirection) return std::nullopt;
  const Value ratios = direction.Get(Attribute::kCoordinates);
  return UnitVector({ratios[0].Number(0.0), ratios[1].Number(0.0), ratios[2].Number(0.0)});
}

Transform3 MakeAxes(const Point3& origin, std::optional<Vector3> z, std::optional<Vector3> x) {
  Transform3 axes;
  axes.origin = origin;
  if (z) axes.z = *z;
  std::optional<Vector3> first;
  if (x) first = SquareTo(axes.z, *x);
  if (!first) first = SquareTo(axes.z, {1.0, 0.0, 0.0});
  if (!first) first = SquareTo(axes.z, {0.0, 1.0, 0.0});
  axes.x = first.value_or(Vector3(1.0, 0.0, 0.0));
  axes.y = Cross(axes.z, axes.x);
  return axes;
}

std::optional<Transform3> ReadAxes(ReadContext& context, const Instance& placement,
                                   Unreadable& why) {
  const bool isPlane = placement.GetEntity() == Entity::kAxis2Placement2D;
  if (!isPlane && placement.GetEntity() != Entity::kAxis2Placement3D) {
    why = {LossReason::kUnsupportedItem, placement.Number()};
    return std::nullopt;
  }
  const Instance location = Follow(placement, Attribute::kLocation, why);
  if (!location) return std::nullopt;
  const std::optional<Point3> origin = ReadPoint(context, location, why);
  if (!origin) return std::nullopt;
  std::optional<Vector3> z;
  if (!isPlane) z = ReadDirection(placement.Get(Attribute::kAxis).Target());
  std::optional<Vector3> x = ReadDirection(placement.Get(Attribute::kRefDirection).Target());
  if (isPlane && x) x = UnitVector({x->x, x->y, 0.0});
  return MakeAxes(*origin, z, x);
}

std::optional<Transform3> ReadAxes(ReadContext& context, const Instance& from, Attribute attribute,
                                   Unreadable& why) {
  if (!from.Get(attribute).IsSet()) return Transform3();
  const Instance placement = Follow(from, attribute, why);
  if (!placement) return std::nullopt;
  return ReadAxes(context, placement, why);
}

std::optional<Transform3> ReadOperator(ReadContext& context, const Instance& transformation,
                                       Unreadable& why) {
  const Entity entity = transformation.GetEntity();
  const bool isPlane =
      entity == Entity::kTransformation2D || entity == Entity::kTransformation2DNonUniform;
  if (!isPlane && entity != Entity::kTransformation3D &&
      entity != Entity::kTransformation3DNonUniform) {
    why = {LossReason::kUnsupportedItem, transformation.Number()};
    return std::nullopt;
  }
  const Instance location = Follow(transformation, Attribute::kLocalOrigin, why);
  if (!location) return std::nullopt;
  const std::optional<Point3> origin = ReadPoint(context, location, why);
  if (!origin) return std::nullopt;
  const auto axis = [&](Attribute attribute) {
    return ReadDirection(transformation.Get(attribute).Target());
  };
  const std::optional<Vector3> second = axis(Attribute::kAxis2);
  std::optional<Vector3> first = axis(Attribute::kAxis1);
  if (isPlane && !first && second) first = Vector3(second->y, -second->x, 0.0);
  const Transform3 axes =
      MakeAxes(*origin, isPlane ? std::nullopt : axis(Attribute::kAxis3), first);
  // The second axis decides only on which side y is: a map may mirror.
  const double side = second && Dot(*second, axes.y) < 0.0 ? -1.0 : 1.0;
  const double scale = transformation.Get(Attribute::kScale).Number(1.0);
  const double scale2 = transformation.Get(Attribute::kScale2).Number(scale);
  const double scale3 = transformation.Get(Attribute::kScale3).Number(scale);
  const Transform3 map{scale * axes.x, side * scale2 * axes.y, scale3 * axes.z, *origin};
  if (IsUsable(map)) return map;
  why = {LossReason::kNotFinite, transformation.Number()};
  return std::nullopt;
}

Transform3 InverseOfAxes(const Transform3& axes) {
  Transform3 inverse;
  inverse.x = {axes.x.x, axes.y.x, axes.z.x};
  inverse.y = {axes.x.y, axes.y.y, axes.z.y};
  inverse.z = {axes.x.z, axes.y.z, axes.z.z};
  const Vector3 origin(axes.origin.x, axes.origin.y, axes.origin.z);
  inverse.origin = Point3() + -inverse(origin);
  return inverse;
}

PlacementReader::Entry PlacementReader::Complete(const Instance& placement, const Entry* parent) {
  Entry entry;
  entry.isComplete = true;
  if (parent != nullptr && !parent->toWorld) {
    entry.why = parent->why;
    return entry;
  }
  if (placement.GetEntity() != Entity::kLocalPlacement) {
    entry.why = {LossReason::kUnsupportedItem, placement.Number()};
    return entry;
  }
  entry.toWorld = ReadAxes(context, placement, Attribute::kRelativePlacement, entry.why);
  if (!entry.toWorld || parent == nullptr) return entry;
  entry.toWorld = Combine(*parent->toWorld, *entry.toWorld);
  if (IsUsable(*entry.toWorld)) return entry;
  entry.toWorld.reset();
  entry.why = {LossReason::kNotFinite, placement.Number()};
  return entry;
}

std::optional<Transform3> PlacementReader::Read(const Instance& placement, Unreadable& why) {
  std::vector<Instance> chain;
  Entry top;  // what the last placement of the chain is relative to
  const Entry* parent = nullptr;
  for (Instance at = placement; at;) {
    const auto [found, isNew] = entries.try_emplace(at.Number());
    if (!isNew) {
      top = found->second;
      if (!top.isComplete) top.why = {LossReason::kCycle, at.Number()};
      parent = &top;
      break;
    }
    chain.push_back(at);
    const Value next = at.Get(Attribute::kPlacementRelTo);
    if (next.IsDangling()) {
      top.why = {LossReason::kDangling, at.Number()};
      parent = &top;
    }
    at = next.Target();
  }
  for (std::size_t i = chain.size(); i-- > 0;) {
    const Entry entry = Complete(chain[i], parent);
    parent = &(entries[chain[i].Number()] = entry);
  }
  if (parent == nullptr) return Transform3();
  why = parent->why;
  return parent->toWorld;
}

}  // namespace KelIFC::building
