#ifndef KELIFC_BUILDING_BUILD_IDEALISE_SOLID_H_
#define KELIFC_BUILDING_BUILD_IDEALISE_SOLID_H_

#include "kelifc/building/building.h"
#include "kelifc/building/mesh.h"
#include "kelifc/building/profile.h"

namespace KelIFC::building::idealising {

/// The solid that a member stands for: its profile swept along its axis, cut by the planes of its
/// ends. `end` is the profile at the end of a tapered
/// member, null for others; it must have as many points as the first. Empty if a cut runs along the
/// axis or the ends overlap by at least `slack`, in metres. Where they overlap by less, they touch.
Mesh MakeMemberSolid(const MemberAxis& axis, const BuildingProfile& profile,
                     const BuildingProfile* end, double slack = 0.0);

/// The solid that a surface stands for. Empty if the outline has no area.
Mesh MakeSurfaceSolid(const SurfaceRegion& surface);

/// A circle in space: the centre, and the unit vector about which the arc from the first point over
/// the second to the third turns counter-clockwise by `angle`.
struct ArcInSpace {
  Point3 centre;
  Vector3 normal;
  double angle = 0.0;

  /// The place of a point after a turn about the axis of the arc.
  Point3 Turn(const Point3& p, double by) const;
};

/// False if the points lie on a line.
bool MakeArc(const Point3& start, const Point3& through, const Point3& end, ArcInSpace& arc);

}  // namespace KelIFC::building::idealising

#endif  // KELIFC_BUILDING_BUILD_IDEALISE_SOLID_H_
