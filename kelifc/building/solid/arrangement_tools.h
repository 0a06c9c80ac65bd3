#ifndef KELIFC_BUILDING_SOLID_ARRANGEMENT_TOOLS_H_
#define KELIFC_BUILDING_SOLID_ARRANGEMENT_TOOLS_H_

#include <algorithm>
#include <cstdint>

#include "kelifc/building/building.h"
#include "kelifc/building/solid/loops.h"
#include "kelifc/building/solid/vector_math.h"

namespace KelIFC::building {

// Helpers of the sources of Arrangement.

inline BuildingBox BoxAround(const Point3& a, const Point3& b) {
  BuildingBox box;
  Extend(box, a);
  Extend(box, b);
  return box;
}

/// Where the nearest point of a segment lies, as a fraction.
inline double FractionOf(const Point3& p, const Point3& a, const Point3& b) {
  const Vector3 edge = b - a;
  const double square = Dot(edge, edge);
  return square > 0.0 ? std::clamp(Dot(p - a, edge) / square, 0.0, 1.0) : 0.0;
}

/// The edge with its smaller point first.
inline DirectedEdge Ordered(std::uint32_t a, std::uint32_t b) {
  return {std::min(a, b), std::max(a, b)};
}

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_SOLID_ARRANGEMENT_TOOLS_H_
