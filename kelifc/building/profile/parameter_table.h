#ifndef KELIFC_BUILDING_PROFILE_PARAMETER_TABLE_H_
#define KELIFC_BUILDING_PROFILE_PARAMETER_TABLE_H_

#include "kelifc/building/profile/shape_region.h"

namespace KelIFC::building {

/// True if ParametersOf lists the parameter for the shape.
bool HasParameter(ProfileShape shape, ProfileParameter parameter);

/// True if a shape that is turned by 90 degrees is the same shape with h and b exchanged.
bool IsTurnable(ProfileShape shape);

/// The parameters that a shape has, with lengths multiplied by `scale`. The others are 0.
ProfileParameters ScaledParameters(ProfileShape shape, const ProfileParameters& parameters,
                                   double scale);

inline double& ValueOf(ProfileParameters& parameters, ProfileParameter parameter) {
  return parameters[static_cast<std::size_t>(parameter)];
}
inline double ValueOf(const ProfileParameters& parameters, ProfileParameter parameter) {
  return parameters[static_cast<std::size_t>(parameter)];
}

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_PROFILE_PARAMETER_TABLE_H_
