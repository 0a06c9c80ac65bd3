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
/// thickness of a flange with a slope counts in the middle of the flange (of I and T in the middle
/// of each half), that of the legs of L in the middle of the leg. The outer radius of C is its
/// inner radius plus the thickness, or 0 if the inner one is 0. An ellipse is made of chords.
///
/// None for kArbitrary, and if the sizes make no shape.
std::optional<Region> ShapeRegion(ProfileShape shape, const ProfileParameters& parameters);

/// What the web of a T can have beside the parameters of the shape.
struct WebOfT {
  /// The angle between each side of the web and the axis of symmetry, in radians. A positive one
  /// makes the web thinner away from the flange. kTw is the thickness at half the height of the T.
  double slope = 0.0;
  double edgeRadius = 0.0;  ///< of the two edges at the foot of the web, in metres
};

/// The region of kT with such a web. None if the sizes make no shape.
std::optional<Region> TRegion(const ProfileParameters& parameters, const WebOfT& web);

/// The corners of the outer contour of a shape with straight edges, counter-clockwise in the order
/// in which the shape is described, with the radius of each. Empty for round and hollow shapes and
/// if the sizes make no shape.
std::vector<RoundedCorner> ShapeCorners(ProfileShape shape, const ProfileParameters& parameters);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_PROFILE_SHAPE_REGION_H_
