#include "kelifc/building/profile/make_profile.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <utility>

#include "kelifc/building/profile/parameter_table.h"
#include "kelifc/building/profile/placement.h"
#include "kelifc/building/profile/section_moments.h"

namespace KelIFC::building {

namespace {

constexpr double kQuarter = std::numbers::pi / 2.0;

void SetProperties(BuildingProfile& profile, const RegionProperties& properties) {
  profile.area = properties.area;
  profile.iy = properties.iy;
  profile.iz = properties.iz;
  profile.iyz = properties.iyz;
}

// The closed form for an ellipse under any affine map.
RegionProperties PropertiesOfEllipse(const ProfileFacts& facts) {
  const double b = ValueOf(facts.parameters, ProfileParameter::kB);
  const double h = ValueOf(facts.parameters, ProfileParameter::kH);
  const Vector2& x = facts.position.x;
  const Vector2& y = facts.position.y;
  RegionProperties properties;
  properties.area = std::numbers::pi / 4.0 * b * h * std::abs(Cross(x, y));
  properties.centroid = facts.position.origin;
  const double alongX = properties.area * b * b / 16.0;
  const double alongY = properties.area * h * h / 16.0;
  properties.iz = alongX * x.x * x.x + alongY * y.x * y.x;
  properties.iy = alongX * x.y * x.y + alongY * y.y * y.y;
  properties.iyz = alongX * x.x * x.y + alongY * y.x * y.y;
  return properties;
}

RegionProperties PropertiesOf(const ProfileFacts& facts, const Region& region,
                              const FlatRegion& flat) {
  if (facts.shape == ProfileShape::kEllipse) return PropertiesOfEllipse(facts);
  const bool hasAllHoles = flat.holes.size() == region.holes.size();
  return hasAllHoles ? building::PropertiesOf(region) : building::PropertiesOf(flat);
}

bool IsOddQuarterTurn(double rotation) { return std::abs(std::abs(rotation) - kQuarter) < 1e-6; }

// Takes shape and sizes from the file, if the position leaves the shape what it is.
void SetShape(BuildingProfile& profile, const ProfileFacts& facts) {
  const Placement placement = PlacementOf(facts.position);
  if (facts.shape == ProfileShape::kArbitrary || !placement.isSimilar) return;
  profile.shape = facts.shape;
  profile.parameters = ScaledParameters(facts.shape, facts.parameters, placement.scale);
  if (IsTurnable(facts.shape) && IsOddQuarterTurn(placement.rotation)) {
    std::swap(ValueOf(profile.parameters, ProfileParameter::kH),
              ValueOf(profile.parameters, ProfileParameter::kB));
  }
}

template <typename Map>
void MapPoints(BuildingProfile& profile, const Map& map) {
  for (Point2& point : profile.outline) point = map(point);
  for (Outline& hole : profile.holes) {
    for (Point2& point : hole) point = map(point);
  }
}

}  // namespace

std::optional<PlacedProfile> MakeProfile(const ProfileFacts& facts) {
  const std::vector<Region> regions = RegionsOf(facts);
  if (regions.size() != 1) return std::nullopt;
  auto flat = Flatten(regions.front());
  if (!flat) return std::nullopt;
  const RegionProperties properties = PropertiesOf(facts, regions.front(), *flat);
  if (!(properties.area > 0.0)) return std::nullopt;
  PlacedProfile placed;
  placed.offset = {-properties.centroid.x, -properties.centroid.y};
  BuildingProfile& profile = placed.profile;
  profile.name = facts.name;
  profile.outline = std::move(flat->outer);
  profile.holes = std::move(flat->holes);
  SetProperties(profile, properties);
  MapPoints(profile, [&placed](const Point2& point) { return point + placed.offset; });
  SetShape(profile, facts);
  if (profile.shape == ProfileShape::kArbitrary) RecogniseShape(profile);
  Designate(profile);
  return placed;
}

}  // namespace KelIFC::building
