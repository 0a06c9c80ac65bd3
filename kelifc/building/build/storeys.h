#ifndef KELIFC_BUILDING_BUILD_STOREYS_H_
#define KELIFC_BUILDING_BUILD_STOREYS_H_

#include <cstddef>
#include <vector>

#include "kelifc/building/building.h"

namespace KelIFC::building {

/// Elevations that differ by less are the same, in metres.
constexpr double kSameElevation = 1e-3;

/// Sorts the storeys by elevation and sets their heights. Storeys with the same elevation keep
/// their order, and have the same height. An elevation that is not finite counts as missing.
void ArrangeStoreys(std::vector<BuildingStorey>& storeys);

/// Finds the storey in which an element is from the box of its body.
///
/// An element is in the highest storey whose elevation is not above its lowest point. Up to 0.3 m
/// above the lowest point it counts, too, if the element reaches above the elevation: a wall that
/// begins on the structural floor is in the storey of the finished floor. A horizontal slab is in
/// the storey that it carries, so its upper face decides, with the same 0.3 m. An element below all
/// storeys, such as a footing, is in the lowest one.
///
/// Of storeys with the same elevation, the one that contains the element is preferred, then the
/// first.
class StoreysByHeight {
 public:
  /// The storeys must be arranged.
  explicit StoreysByHeight(const std::vector<BuildingStorey>& storeys);

  /// Returns the instance number of the storey; 0 if no storey has an elevation. Logarithmic time.
  std::size_t Find(const BuildingElement& element) const;

 private:
  struct Level {
    double elevation;
    std::size_t id;
  };

  std::size_t LevelUpTo(double height) const;
  std::size_t Choose(std::size_t level, std::size_t stated) const;

  std::vector<Level> levels;  // by rising elevation
};

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_BUILD_STOREYS_H_
