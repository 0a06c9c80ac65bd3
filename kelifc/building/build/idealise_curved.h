#ifndef KELIFC_BUILDING_BUILD_IDEALISE_CURVED_H_
#define KELIFC_BUILDING_BUILD_IDEALISE_CURVED_H_

#include <optional>

#include "kelifc/building/build/idealise_reading.h"

namespace KelIFC::building::idealising {

// Members along curves. `toLocal` maps the coordinates of a solid to those of the boundary. None if
// the facts describe no member, or if the map scales differently along the axes.

std::optional<Reading> ReadRevolution(Subject& subject, const Revolution& revolution,
                                      const Transform3& toLocal);
std::optional<Reading> ReadSweptDisk(Subject& subject, const SweptDisk& disk,
                                     const Transform3& toLocal);
std::optional<Reading> ReadSweptCurve(Subject& subject, const SweptCurve& sweep,
                                      const Transform3& toLocal);

/// Completes the reading of a member whose axis and profile are set. None if there is no solid.
std::optional<Reading> FinishCurvedMember(Subject& subject, Reading reading);

/// Reads a boundary as a member that runs along an arc or a line with bends in a plane, which is
/// square to `normal`. None if the cut of the plane is no strip.
std::optional<Reading> ReadBentMember(Subject& subject, const Vector3& normal);

/// Reads a wall whose plan is a strip along an arc or along a line with bends. `up` is the
/// direction of its height. None if its section is no such strip.
std::optional<Reading> ReadCurvedWall(Subject& subject, const Vector3& up);

}  // namespace KelIFC::building::idealising

#endif  // KELIFC_BUILDING_BUILD_IDEALISE_CURVED_H_
