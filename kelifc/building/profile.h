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

/// A size of a profile, in metres; kSlope in radians. ParametersOf lists those of each shape. h is
/// along z and b along y.
enum class ProfileParameter : std::uint8_t {
  kH,
  kB,      ///< of kTrapezium: of the bottom; of kAsymmetricI: of the bottom flange
  kB1,     ///< of the top of kTrapezium, of the top flange of kAsymmetricI
  kD,      ///< the outside diameter
  kT,      ///< the thickness of the wall
  kTw,     ///< the thickness of the web
  kTf,     ///< the thickness of the flange; of kAsymmetricI: of the bottom flange
  kTf1,    ///< the thickness of the top flange of kAsymmetricI
  kC,      ///< the girth of kC
  kR,      ///< the radius of a fillet; of a hollow or rounded rectangle: outside; of kC: inside
  kR1,     ///< the radius of an edge; of kHollowRectangle: inside; of kAsymmetricI: the top fillet
  kSlope,  ///< of the flanges or legs
  kOffset  ///< of the start of the top of kTrapezium from the start of the bottom, along y
};

constexpr std::size_t kProfileParameterCount = 13;

/// The name of a parameter, as the command prints it: "h", "tw".
KELIFC_API std::string_view TextOf(ProfileParameter parameter);

/// The parameters that a shape has, in the order in which they are printed. The list ends at
/// `count`.
struct ProfileParameterList {
  std::array<ProfileParameter, kProfileParameterCount> parameters = {};
  std::size_t count = 0;

  const ProfileParameter* begin() const { return parameters.data(); }
  const ProfileParameter* end() const { return parameters.data() + count; }
};
KELIFC_API ProfileParameterList ParametersOf(ProfileShape shape);

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
