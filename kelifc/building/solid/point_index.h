#ifndef KELIFC_BUILDING_SOLID_POINT_INDEX_H_
#define KELIFC_BUILDING_SOLID_POINT_INDEX_H_

#include <cstddef>
#include <cstdint>
#include <vector>

#include "kelifc/building/mesh.h"

namespace KelIFC::building {

/// Numbers points such that points within a distance of each other have one number. The first point
/// of such a group decides its place. A look-up takes constant time, however the points lie, as
/// long as few of them share a cell of twice the distance; no two of one number do.
class PointIndex {
 public:
  /// `distance` must be positive. Points must be usable coordinates (IsUsable).
  explicit PointIndex(double distance, std::size_t expectedPoints = 0);

  /// The number of the nearest known point within the distance; a new number if there is none.
  Mesh::Index Add(const Point3& point);

  const std::vector<Point3>& Points() const { return points; }

 private:
  void Grow();
  std::size_t SlotOf(std::int64_t x, std::int64_t y, std::int64_t z) const;

  double distance;
  double cellsPerMetre;
  std::vector<Point3> points;
  std::vector<Mesh::Index> next;   // the chain of a slot
  std::vector<Mesh::Index> slots;  // a power of two
};

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_SOLID_POINT_INDEX_H_
