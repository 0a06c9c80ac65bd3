#ifndef TESTS_EXPORT_SAF_MADE_PROFILE_H_
#define TESTS_EXPORT_SAF_MADE_PROFILE_H_

#include <initializer_list>
#include <utility>

#include "kelifc/building/profile.h"

namespace KelIFC::exporting::saf {

/// A profile with a box that has the lower left and the upper right corner, relative to the
/// centroid.
inline BuildingProfile ProfileInBox(
    ProfileShape shape, const Point2& low, const Point2& high,
    std::initializer_list<std::pair<ProfileParameter, double>> parameters) {
  BuildingProfile profile;
  profile.shape = shape;
  for (const auto& [parameter, value] : parameters) {
    profile.parameters[static_cast<std::size_t>(parameter)] = value;
  }
  profile.outline = {low, {high.x, low.y}, high, {low.x, high.y}};
  profile.area = (high.x - low.x) * (high.y - low.y);
  return profile;
}

/// A rectangle, in metres.
inline BuildingProfile RectangleProfile(double h, double b) {
  return ProfileInBox(ProfileShape::kRectangle, {-b / 2.0, -h / 2.0}, {b / 2.0, h / 2.0},
                      {{ProfileParameter::kH, h}, {ProfileParameter::kB, b}});
}

}  // namespace KelIFC::exporting::saf

#endif  // TESTS_EXPORT_SAF_MADE_PROFILE_H_
