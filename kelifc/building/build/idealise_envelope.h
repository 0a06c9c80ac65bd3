#ifndef KELIFC_BUILDING_BUILD_IDEALISE_ENVELOPE_H_
#define KELIFC_BUILDING_BUILD_IDEALISE_ENVELOPE_H_

#include <optional>

#include "kelifc/building/build/idealise_scan.h"

namespace KelIFC::building::idealising {

/// The union of the sections that a boundary has between two coordinates along the normal of a
/// plane: the outline of the prism from which the body was cut, if pieces were cut off everywhere
/// along it. None if the union has several regions, if its prism is much larger than the body, or
/// if there are many different sections.
std::optional<Section> EnvelopeOf(Boundary& boundary, const PlaneFrame& plane, const Span& span);

}  // namespace KelIFC::building::idealising

#endif  // KELIFC_BUILDING_BUILD_IDEALISE_ENVELOPE_H_
