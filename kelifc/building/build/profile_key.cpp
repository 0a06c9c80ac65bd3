#include "kelifc/building/build/profile_key.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace KelIFC::building {
namespace {

void Append(std::string& key, std::uint64_t word) {
  char bytes[sizeof word];
  std::memcpy(bytes, &word, sizeof word);
  key.append(bytes, sizeof word);
}

void AppendRounded(std::string& key, double metres) {
  constexpr double kStepsPerMetre = 1e5;
  constexpr double kLargest = 9e18;
  const double steps = std::round(metres * kStepsPerMetre);
  if (std::abs(steps) < kLargest) {
    Append(key, static_cast<std::uint64_t>(static_cast<std::int64_t>(steps)));
    return;
  }
  std::uint64_t bits = 0;  // too large to round, or not finite
  std::memcpy(&bits, &metres, sizeof bits);
  Append(key, bits);
}

void AppendLoop(std::string& key, const Outline& loop) {
  Append(key, loop.size());
  for (const Point2& point : loop) {
    AppendRounded(key, point.x);
    AppendRounded(key, point.y);
  }
}

/// What distinguishes outlines of the same sizes: the extents about the centroid, which a mirror
/// exchanges, the sign of iyz, and the numbers of points, because chords can be coarse or fine.
void AppendPosition(std::string& key, const BuildingProfile& profile) {
  constexpr double kStepsPerMetre = 1e4;
  constexpr double kShift = 0.25;  // so that halves of tenths of millimetres are not on a border
  constexpr double kNoMoment = 1e-6;
  double extents[4] = {};
  for (const Point2& point : profile.outline) {
    extents[0] = std::min(extents[0], point.x);
    extents[1] = std::max(extents[1], point.x);
    extents[2] = std::min(extents[2], point.y);
    extents[3] = std::max(extents[3], point.y);
  }
  for (const double extent : extents) {
    AppendRounded(key, std::floor(extent * kStepsPerMetre + kShift));
  }
  const double least = kNoMoment * (profile.iy + profile.iz);
  key += profile.iyz > least ? '+' : profile.iyz < -least ? '-' : '0';
  Append(key, profile.outline.size());
  for (const Outline& hole : profile.holes) Append(key, hole.size());
}

}  // namespace

std::string ProfileKey(const BuildingProfile& profile) {
  std::string key(1, static_cast<char>(profile.shape));
  if (profile.shape == ProfileShape::kArbitrary) {
    AppendLoop(key, profile.outline);
    for (const Outline& hole : profile.holes) AppendLoop(key, hole);
  } else {
    for (const double size : profile.parameters) AppendRounded(key, size);
    AppendPosition(key, profile);
  }
  return key;
}

}  // namespace KelIFC::building
