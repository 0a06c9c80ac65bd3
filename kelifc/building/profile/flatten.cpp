#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include "kelifc/building/profile/loop_check.h"
#include "kelifc/building/profile/make_profile.h"
#include "kelifc/building/profile/plane_arc.h"
#include "kelifc/building/profile/simplify.h"
#include "kelifc/building/solid/vector_math.h"

namespace KelIFC::building {

namespace {

bool IsUsable(const Contour& contour) {
  return std::all_of(contour.points.begin(), contour.points.end(),
                     [](const Point2& point) { return building::IsUsable(point); });
}

// Turns a loop round unless its area has the wanted sign. False if it has no area.
bool Orient(Outline& loop, bool isCounterClockwise) {
  const double area = AreaOf(loop);
  if (loop.size() < 3 || !(std::abs(area) > kSamePoint * PerimeterOf(loop) / 2.0)) return false;
  if ((area > 0.0) != isCounterClockwise) std::reverse(loop.begin() + 1, loop.end());
  return true;
}

}  // namespace

Outline Flatten(const Contour& contour) {
  if (!IsUsable(contour)) return {};
  return Simplify(ChordsOf(contour, kChordError));
}

std::optional<FlatRegion> Flatten(const Region& region) {
  FlatRegion flat{Flatten(region.outer), {}};
  if (!Orient(flat.outer, true)) return std::nullopt;
  for (const Contour& hole : region.holes) {
    if (!IsUsable(hole)) return std::nullopt;
    Outline loop = Flatten(hole);
    if (Orient(loop, false)) flat.holes.push_back(std::move(loop));
  }
  if (!IsSimple(flat)) return std::nullopt;
  return flat;
}

}  // namespace KelIFC::building
