#include "kelifc/building/build/storeys.h"

#include <algorithm>
#include <cmath>

namespace KelIFC::building {
namespace {

/// How far the structure of a storey may begin below the storey's elevation, in metres.
constexpr double kFloorBuildUp = 0.3;

bool IsHorizontalSlab(const BuildingElement& element) {
  constexpr double kLeastVertical = 0.99;  // the normal is within 8 degrees of vertical
  return element.className == "IfcSlab" && element.surface && !element.surface->sweep &&
         std::abs(element.surface->normal.z) >= kLeastVertical;
}

}  // namespace

void ArrangeStoreys(std::vector<BuildingStorey>& storeys) {
  for (BuildingStorey& storey : storeys) {
    storey.hasElevation = storey.hasElevation && std::isfinite(storey.elevation);
    if (!storey.hasElevation) storey.elevation = 0.0;
    storey.height.reset();
  }
  std::stable_sort(
      storeys.begin(), storeys.end(),
      [](const BuildingStorey& a, const BuildingStorey& b) { return a.elevation < b.elevation; });
  std::size_t above = 0;
  for (BuildingStorey& storey : storeys) {
    const auto isAbove = [&storey](const BuildingStorey& other) {
      return other.hasElevation && other.elevation > storey.elevation + kSameElevation;
    };
    while (above < storeys.size() && !isAbove(storeys[above])) ++above;
    if (storey.hasElevation && above < storeys.size()) {
      storey.height = storeys[above].elevation - storey.elevation;
    }
  }
}

StoreysByHeight::StoreysByHeight(const std::vector<BuildingStorey>& storeys) {
  for (const BuildingStorey& storey : storeys) {
    if (storey.hasElevation) levels.push_back({storey.elevation, storey.id});
  }
}

/// The position of the highest level up to a height; 0 if all are above it.
std::size_t StoreysByHeight::LevelUpTo(double height) const {
  const auto above =
      std::upper_bound(levels.begin(), levels.end(), height + kSameElevation,
                       [](double limit, const Level& level) { return limit < level.elevation; });
  return above == levels.begin() ? 0 : static_cast<std::size_t>(above - levels.begin()) - 1;
}

/// Of the levels with the same elevation as `level`: the stated one, otherwise the first.
std::size_t StoreysByHeight::Choose(std::size_t level, std::size_t stated) const {
  const double least = levels[level].elevation - kSameElevation;
  std::size_t first = level;
  for (std::size_t i = level + 1; i-- > 0 && levels[i].elevation >= least;) {
    if (levels[i].id == stated) return stated;
    first = i;
  }
  return levels[first].id;
}

std::size_t StoreysByHeight::Find(const BuildingElement& element) const {
  const BuildingBox& box = element.body.box;
  if (levels.empty() || box.IsEmpty()) return 0;
  if (IsHorizontalSlab(element)) {
    return Choose(LevelUpTo(box.max.z + kFloorBuildUp), element.storey);
  }
  std::size_t level = LevelUpTo(box.min.z + kFloorBuildUp);
  if (levels[level].elevation > box.max.z - kSameElevation) level = LevelUpTo(box.min.z);
  return Choose(level, element.storey);
}

}  // namespace KelIFC::building
