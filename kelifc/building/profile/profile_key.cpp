#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>

#include "kelifc/building/profile/make_profile.h"
#include "kelifc/building/profile/parameter_table.h"

namespace KelIFC::building {

namespace {

constexpr double kRounding = 1e5;       // hundredths of a millimetre in a metre
constexpr double kSlopeRounding = 1e4;  // in a radian
constexpr double kExtentTolerance = 1e-3;
constexpr double kMomentTolerance = 0.02;  // of the sum of both moments
constexpr int kNoPosition = -1;

void Append(std::string& key, double value, double rounding) {
  const double rounded = std::round(value * rounding);
  const bool isUsable = std::abs(rounded) < 1e15;
  key += isUsable ? std::to_string(static_cast<std::int64_t>(rounded)) : "?";
  key += ' ';
}

// How far an outline, without its holes, extends from its centroid, and its moments.
struct Extents {
  double left = 0.0, right = 0.0, low = 0.0, high = 0.0;
  double iy = 0.0, iz = 0.0, iyz = 0.0;

  Extents Mirrored() const { return {right, left, low, high, iy, iz, -iyz}; }
  Extents Turned() const { return {high, low, left, right, iz, iy, -iyz}; }
};

Extents ExtentsOf(const Outline& outline) {
  const RegionProperties properties = PropertiesOf(FlatRegion{outline, {}});
  Extents extents{-1e300, -1e300, -1e300, -1e300, properties.iy, properties.iz, properties.iyz};
  for (const Point2& point : outline) {
    extents.left = std::max(extents.left, properties.centroid.x - point.x);
    extents.right = std::max(extents.right, point.x - properties.centroid.x);
    extents.low = std::max(extents.low, properties.centroid.y - point.y);
    extents.high = std::max(extents.high, point.y - properties.centroid.y);
  }
  return extents;
}

bool AreLike(const Extents& a, const Extents& b) {
  const double moment = kMomentTolerance * (b.iy + b.iz);
  return std::abs(a.left - b.left) <= kExtentTolerance &&
         std::abs(a.right - b.right) <= kExtentTolerance &&
         std::abs(a.low - b.low) <= kExtentTolerance &&
         std::abs(a.high - b.high) <= kExtentTolerance && std::abs(a.iy - b.iy) <= moment &&
         std::abs(a.iz - b.iz) <= moment && std::abs(a.iyz - b.iyz) <= moment;
}

// The first of the eight positions in which the outline is that of its shape.
int PositionOf(const BuildingProfile& profile) {
  if (profile.shape == ProfileShape::kCircle || profile.shape == ProfileShape::kHollowCircle) {
    return 0;
  }
  const auto region = ShapeRegion(profile.shape, profile.parameters);
  if (!region) return kNoPosition;
  Extents standard = ExtentsOf(Flatten(region->outer));
  const Extents actual = ExtentsOf(profile.outline);
  for (int position = 0; position < 8; ++position) {
    if (AreLike(actual, standard)) return position;
    standard = position == 3 ? standard.Turned().Mirrored() : standard.Turned();
  }
  return kNoPosition;
}

}  // namespace

std::string ProfileKey(const BuildingProfile& profile) {
  std::string key(TextOf(profile.shape));
  key += ' ';
  int position = kNoPosition;
  if (profile.shape != ProfileShape::kArbitrary) {
    for (std::size_t i = 0; i < kProfileParameterCount; ++i) {
      const auto parameter = static_cast<ProfileParameter>(i);
      if (!HasParameter(profile.shape, parameter)) continue;
      Append(key, profile.parameters[i],
             parameter == ProfileParameter::kSlope ? kSlopeRounding : kRounding);
    }
    position = PositionOf(profile);
  }
  if (position != kNoPosition) return key + '@' + std::to_string(position);
  const auto append = [&key](const Outline& loop) {
    key += '[';
    for (const Point2& point : loop) {
      Append(key, point.x, kRounding);
      Append(key, point.y, kRounding);
    }
    key += ']';
  };
  append(profile.outline);
  for (const Outline& hole : profile.holes) append(hole);
  return key;
}

bool AreSameProfile(const BuildingProfile& a, const BuildingProfile& b) {
  return a.shape == b.shape && ProfileKey(a) == ProfileKey(b);
}

}  // namespace KelIFC::building
