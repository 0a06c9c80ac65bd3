#include "kelifc/building/profile/crane_rail.h"

#include <utility>
#include <vector>

#include "kelifc/building/profile/rounded_contour.h"

namespace KelIFC::building {

namespace {

bool HasBend(const CraneRail& rail) { return rail.bendWidth > 0.0; }

bool IsRail(const CraneRail& rail) {
  const bool hasHead = rail.headAtWeb > 0.0 && rail.headAtEdge > 0.0 &&
                       rail.headAtEdge < rail.height && rail.webThickness < rail.headWidth;
  const bool hasBase = rail.baseAtWeb > 0.0 && rail.baseAtEdge > 0.0 &&
                       rail.baseAtEdge < rail.height && rail.webThickness < rail.baseWidth;
  const bool hasWeb = rail.webThickness > 0.0 && rail.headAtWeb + rail.baseAtWeb < rail.height;
  const bool fitsBend =
      !HasBend(rail) || (rail.baseAtBend > 0.0 && rail.baseAtBend < rail.height &&
                         rail.webThickness < rail.bendWidth && rail.bendWidth < rail.baseWidth);
  return hasHead && hasBase && hasWeb && fitsBend;
}

// The right half, from the bottom to the top.
std::vector<RoundedCorner> RightCorners(const CraneRail& rail) {
  const double low = -rail.height / 2.0;
  const double high = rail.height / 2.0;
  const double web = rail.webThickness / 2.0;
  std::vector<RoundedCorner> corners = {{{rail.baseWidth / 2.0, low}},
                                        {{rail.baseWidth / 2.0, low + rail.baseAtEdge}}};
  if (HasBend(rail)) corners.push_back({{rail.bendWidth / 2.0, low + rail.baseAtBend}});
  corners.push_back({{web, low + rail.baseAtWeb}});
  corners.push_back({{web, high - rail.headAtWeb}});
  corners.push_back({{rail.headWidth / 2.0, high - rail.headAtEdge}});
  corners.push_back({{rail.headWidth / 2.0, high}, rail.headRadius});
  return corners;
}

}  // namespace

std::optional<Region> CraneRailRegion(const CraneRail& rail) {
  if (!IsRail(rail)) return std::nullopt;
  std::vector<RoundedCorner> corners = RightCorners(rail);
  for (std::size_t i = corners.size(); i-- > 0;) {
    const RoundedCorner& right = corners[i];
    corners.push_back({{-right.point.x, right.point.y}, right.radius});
  }
  auto contour = RoundedContour(corners);
  if (!contour) return std::nullopt;
  return Region{std::move(*contour), {}};
}

}  // namespace KelIFC::building
