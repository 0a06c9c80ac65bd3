#ifndef KELIFC_BUILDING_BUILD_OPENINGS_H_
#define KELIFC_BUILDING_BUILD_OPENINGS_H_

#include "kelifc/building/build/body_maker.h"
#include "kelifc/building/building.h"
#include "kelifc/building/facts/product_facts.h"

namespace KelIFC::building {

/// Makes an opening of an element.
///
/// In a plane surface the opening goes along the normal. Its outline is its section with the middle
/// plane; if it does not reach the middle plane, its section halfway through it, moved there. In
/// other elements the opening goes along the direction of its extrusion, or square to its largest
/// face, and the outline is its section halfway through it. The depth is the extent of the opening
/// along that direction. The outline is empty and the depth 0 if the opening has no body that can
/// be read. Only the largest region of a section counts.
BuildingOpening MakeOpening(const OpeningFacts& facts, const std::optional<SurfaceRegion>& surface,
                            BodyMaker& bodies);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_BUILD_OPENINGS_H_
