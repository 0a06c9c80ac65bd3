#include <algorithm>
#include <utility>

#include "kelifc/building/mesh.h"
#include "kelifc/building/opened_solid.h"

#include "export/svg/cut_with_gaps.h"

namespace KelIFC::exporting::svg {
namespace {

bool Crosses(const Mesh& body, double z) {
  double low = 1e300;
  double high = -1e300;
  for (const Point3& p : body.points) {
    low = std::min(low, p.z);
    high = std::max(high, p.z);
  }
  return low < z && z < high;
}

}  // namespace

std::vector<Gap> GapsAt(const BuildingElement& element, double z) {
  std::vector<Gap> gaps;
  for (std::size_t i = 0; i < element.openings.size(); ++i) {
    const BuildingOpening& opening = element.openings[i];
    const Mesh body = OpeningBodyOf(opening, CutDepthOf(element, opening));
    if (!Crosses(body, z)) continue;
    for (CutRegion& region : CutAtHeight(body, z)) {
      Outline hull = ConvexHull(std::move(region.outer));
      if (!hull.empty()) gaps.push_back({i, std::move(hull)});
    }
  }
  return gaps;
}

}  // namespace KelIFC::exporting::svg
