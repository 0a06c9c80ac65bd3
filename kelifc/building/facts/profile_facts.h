#ifndef KELIFC_BUILDING_FACTS_PROFILE_FACTS_H_
#define KELIFC_BUILDING_FACTS_PROFILE_FACTS_H_

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "kelifc/building/facts/contour.h"
#include "kelifc/building/profile.h"

namespace KelIFC::building {

/// An affine map of the plane. A new one is the identity.
struct Transform2 {
  Vector2 x{1.0, 0.0};
  Vector2 y{0.0, 1.0};
  Point2 origin;

  Point2 operator()(const Point2& p) const {
    return {origin.x + p.x * x.x + p.y * y.x, origin.y + p.x * x.y + p.y * y.y};
  }
};

/// What a file says of a profile, in metres and radians, in the coordinates of the file's profile.
struct ProfileFacts {
  std::size_t id = 0;
  std::string name;  ///< UTF-8
  ProfileShape shape = ProfileShape::kArbitrary;

  /// The sizes of a shape other than kArbitrary, as the file gives them: kH along its y axis, kB
  /// along its x axis. They are not checked. The shape lies as the schema defines it, most with the
  /// centre of the bounding box at the origin.
  std::array<double, kProfileParameterCount> parameters = {};
  Transform2 position;  ///< of the shape; for kArbitrary of the regions, too

  /// The regions of kArbitrary: one, or several of a composite profile. Arcs stay arcs.
  std::vector<Region> regions;
};

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_FACTS_PROFILE_FACTS_H_
