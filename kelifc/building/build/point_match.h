#ifndef KELIFC_BUILDING_BUILD_POINT_MATCH_H_
#define KELIFC_BUILDING_BUILD_POINT_MATCH_H_

#include <cstddef>
#include <vector>

#include "kelifc/geometry/point.h"

namespace KelIFC::building::idealising {

/// Finds points of a list that lie within a tolerance of a given one, in about log n time.
class PointMatch {
 public:
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  /// Copies the points. All must be finite.
  explicit PointMatch(const std::vector<Point3>& points);

  /// The index of the nearest point within the tolerance, kNone if there is none. It compares at
  /// most 64 points with the given one, and may miss one if more of them are about as near.
  std::size_t Find(const Point3& point, double tolerance) const;

 private:
  struct Entry {
    double key = 0.0;
    Point3 point;
    std::size_t index = 0;
  };
  std::vector<Entry> entries;
};

/// For each point the index of a point that stands for all that coincide with it within the
/// tolerance.
std::vector<std::size_t> Weld(const std::vector<Point3>& points, double tolerance);

}  // namespace KelIFC::building::idealising

#endif  // KELIFC_BUILDING_BUILD_POINT_MATCH_H_
