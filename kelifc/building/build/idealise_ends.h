#ifndef KELIFC_BUILDING_BUILD_IDEALISE_ENDS_H_
#define KELIFC_BUILDING_BUILD_IDEALISE_ENDS_H_

#include "kelifc/building/build/idealise_boundary.h"

namespace KelIFC::building::idealising {

/// Cuts are square if the cosine of their normal and the axis is larger: 0.1 mm on a section of
/// 0.7 m.
constexpr double kSquareCosine = 1.0 - 1e-8;

/// The plane in which a member ends.
struct FoundEnd {
  Point3 point;
  Vector3 normal;  ///< unit vector that points out of the member
  bool isSquare = true;
};

/// The end of a boundary in a direction (a unit vector that points out of it). That is the plane of
/// faces that cover the section, or a smaller plane in front of which no point lies; otherwise the
/// plane square to the direction through the outermost point. `sectionArea` is that of the section.
FoundEnd FindEnd(Boundary& boundary, const Vector3& out, double sectionArea);

}  // namespace KelIFC::building::idealising

#endif  // KELIFC_BUILDING_BUILD_IDEALISE_ENDS_H_
