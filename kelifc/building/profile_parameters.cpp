#include <initializer_list>

#include "kelifc/building/profile.h"

namespace KelIFC {
namespace {

using enum ProfileParameter;

constexpr ProfileParameterList ListOf(std::initializer_list<ProfileParameter> parameters) {
  ProfileParameterList list;
  for (const ProfileParameter parameter : parameters) list.parameters[list.count++] = parameter;
  return list;
}

// By ProfileShape.
constexpr std::array<ProfileParameterList, 15> kLists = {
    ListOf({}),                                      // kArbitrary
    ListOf({kH, kB}),                                // kRectangle
    ListOf({kH, kB, kR}),                            // kRoundedRectangle
    ListOf({kH, kB, kT, kR, kR1}),                   // kHollowRectangle
    ListOf({kD}),                                    // kCircle
    ListOf({kD, kT}),                                // kHollowCircle
    ListOf({kH, kB}),                                // kEllipse
    ListOf({kH, kB, kB1, kOffset}),                  // kTrapezium
    ListOf({kH, kB, kTw, kTf, kR, kR1, kSlope}),     // kI
    ListOf({kH, kB, kTw, kTf, kR, kB1, kTf1, kR1}),  // kAsymmetricI
    ListOf({kH, kB, kTw, kTf, kR, kR1, kSlope}),     // kU
    ListOf({kH, kB, kT, kR, kR1, kSlope}),           // kL
    ListOf({kH, kB, kTw, kTf, kR, kR1, kSlope}),     // kT
    ListOf({kH, kB, kTw, kTf, kR, kR1}),             // kZ
    ListOf({kH, kB, kT, kC, kR}),                    // kC
};
static_assert(kLists.size() == static_cast<std::size_t>(ProfileShape::kC) + 1);

}  // namespace

ProfileParameterList ParametersOf(ProfileShape shape) {
  const auto at = static_cast<std::size_t>(shape);
  return at < kLists.size() ? kLists[at] : ProfileParameterList();
}

ProfileParameterList ParametersOf(const BuildingProfile& profile) {
  ProfileParameterList list = ParametersOf(profile.shape);
  const bool isTapered = profile[kR1] != 0.0 || profile[kSlope] != 0.0;
  if (profile.shape == ProfileShape::kI && !isTapered) list.count -= 2;
  return list;
}

}  // namespace KelIFC
