#ifndef KELIFC_BUILDING_PROFILE_RECOGNISE_H_
#define KELIFC_BUILDING_PROFILE_RECOGNISE_H_

#include <optional>

#include "kelifc/building/profile/shape_region.h"
#include "kelifc/building/solid/slice.h"

namespace KelIFC::building {

/// A shape and its sizes.
struct RecognisedShape {
  ProfileShape shape = ProfileShape::kArbitrary;
  ProfileParameters parameters = {};
};

/// Recognises a region, wherever it lies, in the standard position of a shape, mirrored at one or
/// both axes. Each point of the region lies within kShapeTolerance of the shape. Linear time.
std::optional<RecognisedShape> Recognise(const FlatRegion& region);

/// Recognises a region that may be turned by any angle, too. The larger leg of an L is h then.
std::optional<RecognisedShape> RecogniseTurned(const FlatRegion& region);

/// The angle of the longest edge against the nearest axis, from -45 to 45 degrees, in radians.
/// Angles below 0.01 degrees are 0.
double RotationOfLongestEdge(const Outline& outline);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_PROFILE_RECOGNISE_H_
