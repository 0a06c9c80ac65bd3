#include <cmath>
#include <utility>

#include "kelifc/building/profile/make_profile.h"
#include "kelifc/building/profile/placement.h"
#include "kelifc/building/profile/plane_arc.h"
#include "kelifc/building/profile/shape_region.h"

namespace KelIFC::building {

namespace {

void Place(Contour& contour, const Transform2& position, const Placement& placement) {
  if (!placement.isSimilar) contour = {ChordsOf(contour, kChordError / placement.scale), {}};
  for (Point2& point : contour.points) point = position(point);
  for (ContourArc& arc : contour.arcs) arc.through = position(arc.through);
}

}  // namespace

Placement PlacementOf(const Transform2& position) {
  constexpr double kTolerance = 1e-6;
  Placement placement;
  const double x = Length(position.x);
  const double y = Length(position.y);
  const double cross = Cross(position.x, position.y);
  placement.scale = std::max(x, y);
  placement.isUsable = std::isfinite(position.origin.x) && std::isfinite(position.origin.y) &&
                       std::isfinite(cross) && std::abs(cross) > 1e-12 * x * y && x > 0.0 &&
                       y > 0.0;
  placement.isMirrored = cross < 0.0;
  placement.isSimilar = std::abs(x - y) <= kTolerance * placement.scale &&
                        std::abs(Dot(position.x, position.y)) <= kTolerance * x * y;
  placement.rotation = std::atan2(position.x.y, position.x.x);
  return placement;
}

std::vector<Region> RegionsOf(const ProfileFacts& facts) {
  const Placement placement = PlacementOf(facts.position);
  if (!placement.isUsable) return {};
  std::vector<Region> regions;
  if (facts.shape == ProfileShape::kArbitrary) {
    regions = facts.regions;
  } else if (auto region = ShapeRegion(facts.shape, facts.parameters)) {
    regions.push_back(std::move(*region));
  }
  for (Region& region : regions) {
    Place(region.outer, facts.position, placement);
    for (Contour& hole : region.holes) Place(hole, facts.position, placement);
  }
  return regions;
}

}  // namespace KelIFC::building
