#ifndef TESTS_BUILDING_PROFILE_PROFILE_SAMPLES_H_
#define TESTS_BUILDING_PROFILE_PROFILE_SAMPLES_H_

#include <cmath>
#include <cstddef>
#include <initializer_list>
#include <utility>

#include "kelifc/building/profile/make_profile.h"

namespace KelIFC::building {

using Sizes = std::initializer_list<std::pair<ProfileParameter, double>>;

/// Facts of a shape with the sizes in millimetres (the slope in radians).
inline ProfileFacts FactsOf(ProfileShape shape, Sizes sizes) {
  ProfileFacts facts;
  facts.shape = shape;
  for (const auto& [parameter, size] : sizes) {
    const double factor = parameter == ProfileParameter::kSlope ? 1.0 : 1e-3;
    facts.parameters[static_cast<std::size_t>(parameter)] = size * factor;
  }
  return facts;
}

inline Transform2 Rotated(double angle, bool isMirrored = false) {
  const double c = std::cos(angle);
  const double s = std::sin(angle);
  const double side = isMirrored ? -1.0 : 1.0;
  return {{c, s}, {-s * side, c * side}, {}};
}

}  // namespace KelIFC::building

#endif  // TESTS_BUILDING_PROFILE_PROFILE_SAMPLES_H_
