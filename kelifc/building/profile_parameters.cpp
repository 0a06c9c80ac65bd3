#include <algorithm>
#include <initializer_list>

#include "kelifc/building/profile.h"

namespace KelIFC {
namespace {

using Parameter = ProfileParameter;

struct ShapeParameters {
  ProfileShape shape = ProfileShape::kArbitrary;
  ProfileParameterList list;

  ShapeParameters(ProfileShape shape, std::initializer_list<Parameter> parameters) : shape(shape) {
    std::copy(parameters.begin(), parameters.end(), list.parameters.begin());
    list.count = parameters.size();
  }
};

const ShapeParameters* FindShape(ProfileShape shape) {
  using S = ProfileShape;
  using P = Parameter;
  static const std::initializer_list<ShapeParameters> kShapes = {
      {S::kRectangle, {P::kH, P::kB}},
      {S::kRoundedRectangle, {P::kH, P::kB, P::kR}},
      {S::kHollowRectangle, {P::kH, P::kB, P::kT, P::kR, P::kR1}},
      {S::kCircle, {P::kD}},
      {S::kHollowCircle, {P::kD, P::kT}},
      {S::kEllipse, {P::kH, P::kB}},
      {S::kTrapezium, {P::kH, P::kB, P::kB1, P::kOffset}},
      {S::kI, {P::kH, P::kB, P::kTw, P::kTf, P::kR}},
      {S::kAsymmetricI, {P::kH, P::kB, P::kTw, P::kTf, P::kR, P::kB1, P::kTf1, P::kR1}},
      {S::kU, {P::kH, P::kB, P::kTw, P::kTf, P::kR, P::kR1, P::kSlope}},
      {S::kL, {P::kH, P::kB, P::kT, P::kR, P::kR1, P::kSlope}},
      {S::kT, {P::kH, P::kB, P::kTw, P::kTf, P::kR, P::kR1, P::kSlope}},
      {S::kZ, {P::kH, P::kB, P::kTw, P::kTf, P::kR, P::kR1}},
      {S::kC, {P::kH, P::kB, P::kT, P::kC, P::kR}}};
  const auto* const found =
      std::find_if(kShapes.begin(), kShapes.end(),
                   [shape](const ShapeParameters& entry) { return entry.shape == shape; });
  return found == kShapes.end() ? nullptr : found;
}

}  // namespace

ProfileParameterList ParametersOf(ProfileShape shape) {
  const ShapeParameters* const found = FindShape(shape);
  return found == nullptr ? ProfileParameterList() : found->list;
}

}  // namespace KelIFC
