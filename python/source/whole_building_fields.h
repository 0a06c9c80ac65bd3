#ifndef PYTHON_SOURCE_WHOLE_BUILDING_FIELDS_H_
#define PYTHON_SOURCE_WHOLE_BUILDING_FIELDS_H_

#include "kelifc/kelifc.h"

#include "python/source/building_fields.h"
#include "python/source/profile_fields.h"

namespace KelIFC::python {

/// A release as the command prints it, such as "2x3".
template <>
struct ToPython<IFC_RELEASE> {
  static std::string Type() { return "str"; }
  static py::object Of(IFC_RELEASE release, const Owner& owner);
};

template <>
inline constexpr auto kDescribed<Building> = Describe(
    "Building",
    "What was read of a model: its elements, storeys, materials and profiles, and what was "
    "lost.\n"
    "\n"
    "Lengths are in metres, points in world coordinates with z upwards. Arrays refer to the\n"
    "memory of the building and cannot be written. A building does not need its model and can "
    "be\n"
    "pickled.",
    Field{"release", &Building::release, "The release of the schema, such as '2x3'."},
    Field{"schema", &Building::schema, "The schema as the file names it, such as 'IFC2X3'."},
    Field{"application", &Building::application, "The application that wrote the model."},
    Field{"project_guid", &Building::projectGuid, "The GlobalId of the project."},
    Field{"true_north", &Building::trueNorth,
          "The unit vector to true north in the plane of x and y: an array of shape (2,), or "
          "None."},
    Field{"length_unit", &Building::lengthUnit, "The unit of length of the file."},
    Field{"storeys", &Building::storeys, "The storeys by elevation."},
    Field{"materials", &Building::materials, "The materials, in the order of their first use."},
    Field{"profiles", &Building::profiles, "The profiles, in the order of their first use."},
    Field{"elements", &Building::elements, "The elements, in the order of the file."},
    Field{"decomposed", &Building::decomposed, "Products without a body whose parts are products."},
    Field{"losses", &Building::losses, "The products that could not be read."},
    Field{"totals", &Building::totals, "How many products became what."});

}  // namespace KelIFC::python

#endif  // PYTHON_SOURCE_WHOLE_BUILDING_FIELDS_H_
