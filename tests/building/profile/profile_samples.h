#ifndef TESTS_BUILDING_PROFILE_PROFILE_SAMPLES_H_
#define TESTS_BUILDING_PROFILE_PROFILE_SAMPLES_H_

#include <cmath>
#include <cstddef>
#include <initializer_list>
#include <numbers>
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

inline Outline RegularPolygon(int count, double radius, const Point2& centre) {
  Outline outline;
  for (int i = 0; i < count; ++i) {
    const double angle = 2.0 * std::numbers::pi * i / count;
    outline.emplace_back(centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle));
  }
  return outline;
}

/// A square around the origin whose corners are arcs of so many chords.
inline Outline RoundedSquare(double side, double radius, int chords) {
  Outline outline;
  const double reach = side / 2.0 - radius;
  for (int corner = 0; corner < 4; ++corner) {
    const double x = corner == 0 || corner == 3 ? reach : -reach;
    const double y = corner < 2 ? reach : -reach;
    for (int i = 0; i <= chords; ++i) {
      const double angle = std::numbers::pi / 2.0 * (corner + static_cast<double>(i) / chords);
      outline.emplace_back(x + radius * std::cos(angle), y + radius * std::sin(angle));
    }
  }
  return outline;
}

}  // namespace KelIFC::building

#endif  // TESTS_BUILDING_PROFILE_PROFILE_SAMPLES_H_
