#ifndef KELIFC_BUILDING_PROFILE_H_
#define KELIFC_BUILDING_PROFILE_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "kelifc/building/element_enums.h"
#include "kelifc/geometry/point.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

/// The sizes of a profile, in metres (angles: radians). Which of them a shape has:
///
/// | shape | parameters |
/// |---|---|
/// | kRectangle | h (along z), b (along y) |
/// | kRoundedRectangle | h, b, r (radius of the corners) |
/// | kHollowRectangle | h, b, t, r (outside), r1 (inside) |
/// | kCircle | d |
/// | kHollowCircle | d, t |
/// | kEllipse | h, b |
/// | kTrapezium | h, b (bottom), b1 (top), offset (of the start of the top from that of the bottom)
/// | | kI | h, b, tw (web), tf (flange), r (fillet) | | kAsymmetricI | h, b (bottom flange), tw,
/// tf, r, b1, tf1, r1 (top flange) | | kU | h, b, tw, tf, r (fillet), r1 (edge), slope | | kL | h,
/// b, t, r (fillet), r1 (edge), slope | | kT | h, b, tw, tf, r (fillet), r1 (edge of the flange),
/// slope | | kZ | h, b, tw, tf, r, r1 | | kC | h, b, t, c (girth), r (inside) |
enum class ProfileParameter : std::uint8_t {
  kH,
  kB,
  kB1,
  kD,
  kT,
  kTw,
  kTf,
  kTf1,
  kC,
  kR,
  kR1,
  kSlope,
  kOffset
};

constexpr std::size_t kProfileParameterCount = 13;

/// The name of a parameter, as the command prints it: "h", "tw".
KELIFC_API std::string_view TextOf(ProfileParameter parameter);

/// A closed line of the plane. The first point is not repeated.
using Outline = std::vector<Point2>;

/// A profile. Its coordinates are (y, z) in metres, with the origin at the centroid of its area.
/// Point2::x holds y, and Point2::y holds z. Seen from the end of a member towards its start, y
/// points to the right and z up.
struct BuildingProfile {
  std::string name;  ///< as in the file, in UTF-8; may be empty
  ProfileShape shape = ProfileShape::kArbitrary;
  std::array<double, kProfileParameterCount> parameters = {};  ///< 0 for those that the shape lacks
  Outline outline;             ///< counter-clockwise; chords differ from arcs by 0.1 mm at most
  std::vector<Outline> holes;  ///< clockwise
  double area = 0.0;
  double iy = 0.0;          ///< the integral of z squared over the area
  double iz = 0.0;          ///< the integral of y squared
  double iyz = 0.0;         ///< the integral of y z
  std::string designation;  ///< as "HEB220"; empty if the sizes are not those of a known one

  /// True if the name is a designation whose sizes are not those of the outline.
  bool nameContradicts = false;

  double operator[](ProfileParameter parameter) const {
    return parameters[static_cast<std::size_t>(parameter)];
  }
};

}  // namespace KelIFC

#endif  // KELIFC_BUILDING_PROFILE_H_
