#ifndef EXPORT_SVG_CUT_WITH_GAPS_H_
#define EXPORT_SVG_CUT_WITH_GAPS_H_

#include <cstddef>
#include <vector>

#include "kelifc/building/building.h"
#include "kelifc/building/plane_cut.h"

#include "export/svg/lines.h"

namespace KelIFC::exporting::svg {

/// The section of an opening with the plane that cuts its element.
struct Gap {
  std::size_t opening = 0;  ///< the index in BuildingElement::openings
  Outline outline;          ///< convex, counter-clockwise
};

/// The lines that are seen in a gap.
struct GapLines {
  std::size_t opening = 0;      ///< the index in BuildingElement::openings
  std::vector<PlanLine> faces;  ///< the faces of the element between the ends of the gap

  /// The line in the middle between the ends of the gap; empty if the gap has not two ends.
  Outline middle;
};

/// The cut of an element, interrupted by its openings.
struct CutWithGaps {
  std::vector<std::vector<Outline>> fills;  ///< the loops of each region without the gaps
  std::vector<PlanLine> edges;              ///< what bounds the regions, with the ends of the gaps
  std::vector<GapLines> gaps;               ///< in the order of the openings
};

/// The sections of the openings of an element with the horizontal plane at the height `z`. The
/// section of an opening that is not convex is replaced by its hull. An opening about as deep as
/// the thickness of a surface goes through it.
std::vector<Gap> GapsAt(const BuildingElement& element, double z);

/// Takes the gaps out of the regions of a cut. The time is limited: only the first 500 gaps count,
/// and fewer of a cut with very many edges.
CutWithGaps TakeOut(const std::vector<CutRegion>& cut, const std::vector<Gap>& gaps);

}  // namespace KelIFC::exporting::svg

#endif  // EXPORT_SVG_CUT_WITH_GAPS_H_
