#include <algorithm>
#include <cmath>

#include "kelifc/building/build/idealise_direct.h"

namespace KelIFC::building::idealising {
namespace {

// The search for the only solid follows at most so many nested maps and boolean results.
constexpr int kMostSteps = 256;

BodySource SourceOf(const Solid& solid) {
  if (const auto* extrusion = std::get_if<Extrusion>(&solid.form)) {
    return extrusion->endProfile ? BodySource::kTapered : BodySource::kExtrusion;
  }
  if (std::holds_alternative<Revolution>(solid.form)) return BodySource::kRevolved;
  if (std::holds_alternative<SweptDisk>(solid.form)) return BodySource::kSweptDisk;
  if (std::holds_alternative<SweptCurve>(solid.form)) return BodySource::kSweptCurve;
  if (std::holds_alternative<BooleanResult>(solid.form)) return BodySource::kBoolean;
  if (const auto* shells = std::get_if<Shells>(&solid.form)) {
    return shells->isSurface ? BodySource::kSurfaceModel : BodySource::kBrep;
  }
  return BodySource::kBrep;
}

}  // namespace

SingleSolid FindSingleSolid(const ProductFacts& product) {
  SingleSolid single;
  single.transform = product.placement;
  const std::vector<SolidPointer>* items = &product.items;
  const Solid* solid = nullptr;
  for (int step = 0; step < kMostSteps; ++step) {
    if (items != nullptr) {
      single.isSeveral = items->size() > 1;
      if (items->size() != 1) return single;
      solid = items->front().get();
      items = nullptr;
    }
    if (solid == nullptr) return single;
    if (const auto* mapped = std::get_if<MappedItems>(&solid->form)) {
      single.transform = Combine(single.transform, mapped->transform);
      items = &mapped->items;
    } else if (const auto* result = std::get_if<BooleanResult>(&solid->form);
               result != nullptr && result->operation == BooleanOperation::kDifference) {
      single.hasBoolean = true;
      solid = result->first.get();
    } else {
      single.solid = solid;
      return single;
    }
  }
  return single;
}

BodySource SourceOf(const ProductFacts* product, const SingleSolid& single,
                    const EvaluatedBody& body) {
  if (product != nullptr && !product->items.empty()) {
    if (single.isSeveral) return BodySource::kMulti;
    if (single.hasBoolean) return BodySource::kBoolean;
    if (single.solid != nullptr) return SourceOf(*single.solid);
  }
  if (body.solidCount > 1) return BodySource::kMulti;
  if (body.hasBoolean) return BodySource::kBoolean;
  return body.isSurfaceModel ? BodySource::kSurfaceModel : BodySource::kBrep;
}

std::vector<Vector3> DirectionsOf(const SingleSolid& single) {
  std::vector<Vector3> directions;
  if (single.solid == nullptr) return directions;
  if (const auto* extrusion = std::get_if<Extrusion>(&single.solid->form)) {
    const Transform3 placed = Combine(single.transform, extrusion->position);
    const Vector3 along = Unit(placed(extrusion->direction));
    if (IsFinite(along) && Length(along) > 0.5) directions.push_back(along);
  }
  return directions;
}

std::optional<Point3> ProfilePlaneOf(const SingleSolid& single, const Vector3& normal) {
  if (single.solid == nullptr) return std::nullopt;
  const auto* extrusion = std::get_if<Extrusion>(&single.solid->form);
  if (extrusion == nullptr) return std::nullopt;
  const Transform3 placed = Combine(single.transform, extrusion->position);
  const Vector3 across = Unit(Cross(placed.x, placed.y));
  if (!(std::fabs(Dot(across, normal)) > 0.999)) return std::nullopt;
  return placed.origin;
}

std::optional<StraightExtrusion> MakeStraight(const Extrusion& extrusion,
                                              const Transform3& toLocal) {
  constexpr double kTiny = 1e-6;  // of lengths relative to each other, and of cosines
  const Transform3 placed = Combine(toLocal, extrusion.position);
  StraightExtrusion straight;
  straight.scale = Length(placed.x);
  const double scale = straight.scale;
  if (!(scale > 1e-9) || !(scale < 1e9)) return std::nullopt;
  if (!(std::fabs(Length(placed.y) / scale - 1.0) < kTiny)) return std::nullopt;
  straight.frame = {placed.origin, placed.x / scale, placed.y / scale};
  const Vector3 along = placed(extrusion.direction * extrusion.depth);
  straight.depth = Length(along);
  if (!(straight.depth > 1e-9) || !IsFinite(along)) return std::nullopt;
  straight.along = along / straight.depth;
  // The remaining checks are for angles: skew maps, and directions that are not square.
  if (!(std::fabs(Dot(straight.frame.x, straight.frame.y)) < kTiny) ||
      !(std::fabs(Dot(straight.frame.x, straight.along)) < kTiny) ||
      !(std::fabs(Dot(straight.frame.y, straight.along)) < kTiny)) {
    return std::nullopt;
  }
  straight.isMirrored = Dot(NormalOf(straight.frame), straight.along) < 0.0;
  return straight;
}

}  // namespace KelIFC::building::idealising
