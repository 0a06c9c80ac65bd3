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

/// A size of a profile, in metres; kSlope in radians. ParametersOf returns those of a shape.
enum class ProfileParameter : std::uint8_t {
  kH,      ///< the height, along z
  kB,      ///< the width, along y: of kTrapezium the bottom, of kAsymmetricI the bottom flange
  kB1,     ///< the width of the top of kTrapezium, or of the top flange of kAsymmetricI
  kD,      ///< the outside diameter
  kT,      ///< the thickness of the wall, or of the legs of kL
  kTw,     ///< the thickness of the web
  kTf,     ///< the thickness of the flanges; of kAsymmetricI that of the bottom flange
  kTf1,    ///< the thickness of the top flange of kAsymmetricI
  kC,      ///< the outside length of the lips of the shape kC
  kR,      ///< the radius of the fillets; of rectangles outside, of the shape kC inside
  kR1,     ///< the radius of the edges; of kHollowRectangle inside, of kAsymmetricI the top fillets
  kSlope,  ///< the angle between the inner and the outer faces of the flanges or legs
  kOffset  ///< of kTrapezium: from the left end of the bottom to that of the top, along y
};

/// The number of the enumerators of ProfileParameter.
constexpr std::size_t kProfileParameterCount =
    static_cast<std::size_t>(ProfileParameter::kOffset) + 1;

/// The name of a parameter as the command prints it, such as "h" or "tw". Empty for a value that is
/// no enumerator.
KELIFC_API std::string_view TextOf(ProfileParameter parameter);

/// The parameters of a shape, in the order in which the command prints them.
struct ProfileParameterList {
  std::array<ProfileParameter, kProfileParameterCount> parameters = {};  ///< the first `count`
  std::size_t count = 0;  ///< the number of the parameters

  /// The first parameter.
  const ProfileParameter* begin() const { return parameters.data(); }
  /// The place after the last parameter.
  const ProfileParameter* end() const { return parameters.data() + count; }
};

/// The parameters that a shape has. The list is empty for kArbitrary and for a value that is no
/// enumerator.
KELIFC_API ProfileParameterList ParametersOf(ProfileShape shape);

/// A closed polyline in the plane, in metres. The first point is not repeated.
using Outline = std::vector<Point2>;

/// A cross-section. Its coordinates are (y, z) in metres; the origin is the centroid of its area.
/// Point2::x holds y, and Point2::y holds z. Seen from the end of a member towards its start, y
/// points to the right and z upwards.
struct BuildingProfile {
  std::string name;  ///< the name in the file, in UTF-8; empty if there is none
  ProfileShape shape = ProfileShape::kArbitrary;  ///< which parameters describe the profile

  /// By ProfileParameter; 0 for a parameter that the shape does not have.
  std::array<double, kProfileParameterCount> parameters = {};
  Outline outline;             ///< counter-clockwise; chords are at most 0.1 mm from their arc
  std::vector<Outline> holes;  ///< clockwise
  double area = 0.0;           ///< without the holes, in square metres
  double iy = 0.0;             ///< the integral of z squared over the area, in m^4
  double iz = 0.0;             ///< the integral of y squared, in m^4
  double iyz = 0.0;            ///< the integral of y times z, in m^4
  std::string designation;     ///< such as "HEB220"; empty if no standard section has the sizes

  /// True if the name is the designation of a section with other sizes than the outline has.
  bool nameContradicts = false;

  /// The value of a parameter; 0 if the shape does not have it.
  double operator[](ProfileParameter parameter) const {
    return parameters[static_cast<std::size_t>(parameter)];
  }
};

/// The parameters that describe a profile: those of its shape, without kR1 and kSlope for an I
/// whose flanges have parallel faces and sharp edges.
KELIFC_API ProfileParameterList ParametersOf(const BuildingProfile& profile);

}  // namespace KelIFC

#endif  // KELIFC_BUILDING_PROFILE_H_
