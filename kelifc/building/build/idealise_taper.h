#ifndef KELIFC_BUILDING_BUILD_IDEALISE_TAPER_H_
#define KELIFC_BUILDING_BUILD_IDEALISE_TAPER_H_

#include <optional>

#include "kelifc/building/build/idealise_reading.h"

namespace KelIFC::building::idealising {

/// Reads a subject as a member whose section changes linearly from one end to the other, along the
/// normal of a plane. `span` is the extent of the boundary along it. None if the sections near the
/// ends do not correspond.
std::optional<Reading> ReadTapered(Subject& subject, const PlaneFrame& plane, const Span& span);

/// The same for a member that is cut skew at its ends. Each profile is the face at its end, as seen
/// along the axis, which connects the centroids of the faces.
std::optional<Reading> ReadCutTaper(Subject& subject, const PlaneFrame& plane, const Span& span);

/// Sets the axis of a tapered member between two profiles that lie in parallel planes square to
/// `along`. The axis connects their centroids.
void SetTaperedAxis(MemberAxis& axis, const Point3& start, const Point3& end, const Vector3& along,
                    const Vector3& y);

}  // namespace KelIFC::building::idealising

#endif  // KELIFC_BUILDING_BUILD_IDEALISE_TAPER_H_
