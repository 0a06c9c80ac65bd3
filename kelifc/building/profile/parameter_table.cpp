#include "kelifc/building/profile/parameter_table.h"

#include <initializer_list>

namespace KelIFC::building {

namespace {

using enum ProfileParameter;

constexpr unsigned MaskOf(std::initializer_list<ProfileParameter> parameters) {
  unsigned mask = 0;
  for (const ProfileParameter parameter : parameters)
    mask |= 1U << static_cast<unsigned>(parameter);
  return mask;
}

// By ProfileShape.
constexpr std::array<unsigned, 15> kMasks = {
    MaskOf({}),
    MaskOf({kH, kB}),
    MaskOf({kH, kB, kR}),
    MaskOf({kH, kB, kT, kR, kR1}),
    MaskOf({kD}),
    MaskOf({kD, kT}),
    MaskOf({kH, kB}),
    MaskOf({kH, kB, kB1, kOffset}),
    MaskOf({kH, kB, kTw, kTf, kR}),
    MaskOf({kH, kB, kTw, kTf, kR, kB1, kTf1, kR1}),
    MaskOf({kH, kB, kTw, kTf, kR, kR1, kSlope}),
    MaskOf({kH, kB, kT, kR, kR1, kSlope}),
    MaskOf({kH, kB, kTw, kTf, kR, kR1, kSlope}),
    MaskOf({kH, kB, kTw, kTf, kR, kR1}),
    MaskOf({kH, kB, kT, kC, kR}),
};

}  // namespace

bool HasParameter(ProfileShape shape, ProfileParameter parameter) {
  const auto at = static_cast<std::size_t>(shape);
  return at < kMasks.size() && (kMasks[at] >> static_cast<unsigned>(parameter) & 1U) != 0;
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
    scaled[i] = parameters[i] * (parameter == kSlope ? 1.0 : scale);
  }
  return scaled;
}

}  // namespace KelIFC::building
