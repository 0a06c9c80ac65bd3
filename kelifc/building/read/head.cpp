#include "kelifc/building/read/head.h"

#include <cmath>

namespace KelIFC::building {
namespace {

// A direction that is this short in the plane of x and y points to the zenith.
constexpr double kVertical = 1e-6;

std::optional<Vector2> TrueNorthOf(const Instance& project) {
  const Value contexts = project.Get(Attribute::kRepresentationContexts);
  for (std::size_t i = 0; i < contexts.Size(); ++i) {
    const std::optional<Vector3> north =
        ReadDirection(contexts[i].Target().Get(Attribute::kTrueNorth).Target());
    if (!north) continue;
    Vector2 plane(north->x, north->y);
    if (Length(plane) < kVertical) continue;
    Normalise(plane);
    return plane;
  }
  return std::nullopt;
}

BuildingStorey ReadStorey(ReadContext& context, const Instance& storey,
                          PlacementReader& placements) {
  BuildingStorey result;
  result.id = storey.Number();
  result.guid = storey.StatedGlobalId();
  result.name = storey.Get(Attribute::kName).Text();
  Unreadable why;
  const Instance placement = storey.Get(Attribute::kObjectPlacement).Target();
  if (placement) {
    if (const std::optional<Transform3> toWorld = placements.Read(placement, why)) {
      result.elevation = toWorld->origin.z;
      result.hasElevation = true;
      return result;
    }
  }
  const Value elevation = storey.Get(Attribute::kElevation);
  const double metres = elevation.Number(0.0) * context.units.length.metres;
  result.hasElevation = elevation.IsNumber() && std::isfinite(metres);
  if (result.hasElevation) result.elevation = metres;
  return result;
}

}  // namespace

Building ReadHead(ReadContext& context, const Relations& relations, PlacementReader& placements) {
  Building head;
  const Instance project = relations.Project();
  head.release = context.model.Release();
  head.schema = context.model.Server().GetFileSchema();
  head.application = project.Get(Attribute::kOwnerHistory)
                         .Target()
                         .Get(Attribute::kOwningApplication)
                         .Target()
                         .Get(Attribute::kApplicationFullName)
                         .Text();
  head.projectGuid = project.StatedGlobalId();
  head.trueNorth = TrueNorthOf(project);
  head.lengthUnit = context.units.length;
  for (const Instance& storey : relations.Storeys()) {
    head.storeys.push_back(ReadStorey(context, storey, placements));
  }
  return head;
}

}  // namespace KelIFC::building
