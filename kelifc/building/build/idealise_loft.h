#ifndef KELIFC_BUILDING_BUILD_IDEALISE_LOFT_H_
#define KELIFC_BUILDING_BUILD_IDEALISE_LOFT_H_

#include <cstddef>
#include <vector>

#include "kelifc/building/build/idealise_frame.h"
#include "kelifc/building/building.h"
#include "kelifc/building/mesh.h"
#include "kelifc/building/profile.h"

namespace KelIFC::building::idealising {

/// The loops of a section one after the other, the outer one first, as points in space.
using Station = std::vector<Point3>;

/// How many points each loop of a profile has, the outer one first.
std::vector<std::size_t> LoopSizesOf(const BuildingProfile& profile);

/// A profile in a frame whose origin is at `offset` in the coordinates of the profile.
Station PlaceSection(const BuildingProfile& profile, const Vector2& offset,
                     const PlaneFrame& frame);

/// The solid through sections with loops of equal sizes. Sides that are not plane must be cut into
/// triangles. Empty if there are fewer than two sections.
Mesh Loft(const std::vector<std::size_t>& sizes, const std::vector<Station>& stations,
          bool inTriangles);

/// The solid of a member along an arc: each point of the profile moves along its own circle, from
/// the one end to the other. `end` is the profile at the end of a tapered member, which changes
/// evenly with the angle; null for others. Empty if the points are on a line, or if a circle does
/// not meet the plane of an end.
Mesh MakeAlongArc(const MemberAxis& axis, const BuildingProfile& profile,
                  const BuildingProfile* end);

}  // namespace KelIFC::building::idealising

#endif  // KELIFC_BUILDING_BUILD_IDEALISE_LOFT_H_
