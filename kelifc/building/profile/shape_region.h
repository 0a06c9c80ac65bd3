#ifndef KELIFC_BUILDING_PROFILE_SHAPE_REGION_H_
#define KELIFC_BUILDING_PROFILE_SHAPE_REGION_H_

#include <array>
#include <optional>
#include <vector>

#include "kelifc/building/facts/contour.h"
#include "kelifc/building/profile.h"
#include "kelifc/building/profile/rounded_contour.h"

namespace KelIFC::building {

using ProfileParameters = std::array<double, kProfileParameterCount>;

/// The region of a shape in its standard position: the centre of its bounding box at the origin,
/// h along y (of the plane) and b along x. The back of U and C is on the left, the corner of L at
/// the lower left, the flange of T at the top; the lower flange of Z points to the right. The
/// thickness of a flange with a slope counts in the middle of the flange (of T in the middle of
/// each half), that of the legs of L in the middle of the leg. The outer radius of C is its inner
/// radius plus the thickness, or 0 if the inner one is 0. An ellipse is made of chords.
///
/// None for kArbitrary, and if the sizes make no shape.
std::optional<Region> ShapeRegion(ProfileShape shape, const ProfileParameters& parameters);

/// The corners of the outer contour of a shape with straight edges, counter-clockwise in the order
/// in which the shape is described, with the radius of each. Empty for round and hollow shapes and
/// if the sizes make no shape.
std::vector<RoundedCorner> ShapeCorners(ProfileShape shape, const ProfileParameters& parameters);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_PROFILE_SHAPE_REGION_H_
