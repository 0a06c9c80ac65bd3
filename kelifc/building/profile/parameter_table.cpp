#include "kelifc/building/profile/parameter_table.h"

#include <algorithm>

namespace KelIFC::building {

bool HasParameter(ProfileShape shape, ProfileParameter parameter) {
  const ProfileParameterList list = ParametersOf(shape);
  return std::find(list.begin(), list.end(), parameter) != list.end();
}

bool IsTurnable(ProfileShape shape) {
  return shape == ProfileShape::kRectangle || shape == ProfileShape::kRoundedRectangle ||
         shape == ProfileShape::kHollowRectangle || shape == ProfileShape::kEllipse ||
         shape == ProfileShape::kL;
}

ProfileParameters ScaledParameters(ProfileShape shape, const ProfileParameters& parameters,
                                   double scale) {
  ProfileParameters scaled = {};
  for (std::size_t i = 0; i < kProfileParameterCount; ++i) {
    const auto parameter = static_cast<ProfileParameter>(i);
    if (!HasParameter(shape, parameter)) continue;
    scaled[i] = parameters[i] * (parameter == ProfileParameter::kSlope ? 1.0 : scale);
  }
  return scaled;
}

}  // namespace KelIFC::building
