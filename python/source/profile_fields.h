#ifndef PYTHON_SOURCE_PROFILE_FIELDS_H_
#define PYTHON_SOURCE_PROFILE_FIELDS_H_

#include "kelifc/kelifc.h"

#include "python/source/described.h"
#include "python/source/to_python.h"

namespace KelIFC::python {

/// The parameters of a profile by ProfileParameter.
using ProfileParameters = std::array<double, kProfileParameterCount>;

/// All parameters by their names.
template <>
struct ToPython<ProfileParameters> {
  static std::string Type() { return "dict[str, float]"; }
  static py::object Of(const ProfileParameters& parameters, const Owner& /*owner*/) {
    py::dict all;
    for (std::size_t i = 0; i < parameters.size(); ++i) {
      all[ToText(TextOf(static_cast<ProfileParameter>(i)))] = parameters.at(i);
    }
    return all;
  }
};

template <>
inline constexpr auto kDescribed<BuildingProfile> = Describe(
    "Profile", "A cross-section. Its coordinates are (y, z) in metres; the origin is the centroid.",
    Field{"name", &BuildingProfile::name, "The name in the file."},
    Field{"shape", &BuildingProfile::shape, "The shape, such as 'rectangle' or 'i'."},
    Field{"parameters", &BuildingProfile::parameters,
          "The sizes by their names, in metres; 'slope' in radians. A size that the shape does "
          "not have is 0.0."},
    Field{"outline", &BuildingProfile::outline,
          "The outer edge, counter-clockwise: an array of shape (n, 2), in metres."},
    Field{"holes", &BuildingProfile::holes,
          "The holes, clockwise: arrays of shape (n, 2), in metres."},
    Field{"area", &BuildingProfile::area, "The area without the holes, in square metres."},
    Field{"iy", &BuildingProfile::iy, "The integral of z squared over the area, in m^4."},
    Field{"iz", &BuildingProfile::iz, "The integral of y squared over the area, in m^4."},
    Field{"iyz", &BuildingProfile::iyz, "The integral of y times z over the area, in m^4."},
    Field{"designation", &BuildingProfile::designation,
          "The standard section, such as 'HEB220'; empty if none has the sizes."},
    Field{"name_contradicts", &BuildingProfile::nameContradicts,
          "True if the name is the designation of a section with other sizes."});

}  // namespace KelIFC::python

#endif  // PYTHON_SOURCE_PROFILE_FIELDS_H_
