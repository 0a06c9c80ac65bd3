#ifndef KELIFC_BUILDING_PROFILE_MEASURE_SHAPE_H_
#define KELIFC_BUILDING_PROFILE_MEASURE_SHAPE_H_

#include <cstddef>
#include <vector>

#include "kelifc/building/profile/shape_region.h"

namespace KelIFC::building {

/// The corners of a polygon, beginning with any of them.
class CornerRing {
 public:
  CornerRing(const std::vector<RoundedCorner>& theCorners, std::size_t theStart)
      : corners(theCorners), start(theStart) {}

  std::size_t size() const { return corners.size(); }
  const RoundedCorner& operator[](std::size_t i) const {
    return corners[(start + i) % corners.size()];
  }
  double X(std::size_t i) const { return (*this)[i].point.x; }
  double Y(std::size_t i) const { return (*this)[i].point.y; }
  double R(std::size_t i) const { return (*this)[i].radius; }

 private:
  const std::vector<RoundedCorner>& corners;
  std::size_t start;
};

/// A shape with straight edges, and how its sizes are taken from its corners. The corners are in
/// the order of ShapeCorners. The result has no meaning if they are not those of the shape.
struct ShapeMeasure {
  ProfileShape shape;
  std::size_t corners;
  ProfileParameters (*measure)(const CornerRing& corners);
};

/// The measures; a shape that is a special case of another comes first.
const std::vector<ShapeMeasure>& ShapeMeasures();

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_PROFILE_MEASURE_SHAPE_H_
