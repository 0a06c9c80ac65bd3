#include "kelifc/building/build/profile_key.h"

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

}  // namespace

std::string ProfileKey(const BuildingProfile& profile) {
  std::string key(1, static_cast<char>(profile.shape));
  if (profile.shape == ProfileShape::kArbitrary) {
    AppendLoop(key, profile.outline);
    for (const Outline& hole : profile.holes) AppendLoop(key, hole);
  } else {
    for (const double size : profile.parameters) AppendRounded(key, size);
  }
  return key;
}

}  // namespace KelIFC::building
