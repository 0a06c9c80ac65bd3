#ifndef PYTHON_SOURCE_STRUCTURE_FIELDS_H_
#define PYTHON_SOURCE_STRUCTURE_FIELDS_H_

#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "python/source/described.h"
#include "tools/kelifc/structure.h"

// The values of the structure as Python shows them.

namespace KelIFC::python {

template <>
struct Described<command::Storey> {
  static constexpr const char* kName = "StructureStorey";
  static constexpr const char* kDoc =
      "A storey. Its level and its height are in the unit of the file.";
  static constexpr auto kFields = std::tuple{
      Field{"number", &command::Storey::number,
            "0 for the lowest storey at or above level 0; those below are negative."},
      Field{"name", &command::Storey::name, "The name of the storey."},
      Field{"level", &command::Storey::level, "The height of the placement of the storey."},
      Field{"height", &command::Storey::height, "The difference to the level of the next storey."}};
};

/// The fields that all elements have. `T` is the structure of the element.
template <class T>
constexpr auto ElementFields(const char* points) {
  return std::tuple{
      Field{"name", static_cast<std::string T::*>(&T::name), "The name."},
      Field{"guid", static_cast<std::string T::*>(&T::guid),
            "The identifier, such as '{00112233-4455-6677-8899-AABBCCDDEEFF}'."},
      Field{"section", static_cast<std::string T::*>(&T::section), "The name of the section."},
      Field{"storey", static_cast<std::optional<int> T::*>(&T::storey),
            "The number of the storey, or None if no storey contains the element."},
      Field{"points", static_cast<std::vector<command::Point> T::*>(&T::points), points}};
}

constexpr const char* kPointsDoc = "An array of shape (n, 3), in metres.";

template <>
struct Described<command::Element> {
  static constexpr const char* kName = "StructureElement";
  static constexpr const char* kDoc = "A column, a window, a door or a hole.";
  static constexpr auto kFields = ElementFields<command::Element>(kPointsDoc);
};

template <>
struct Described<command::Boundary> {
  static constexpr const char* kName = "Boundary";
  static constexpr const char* kDoc = "The boundary of a beam with a faceted solid.";
  static constexpr auto kFields = std::tuple{
      Field{"points", &command::Boundary::points, kPointsDoc},
      Field{"faces", &command::Boundary::faces, "The numbers of the points of each face, from 1."}};
};

template <>
struct Described<command::Beam> {
  static constexpr const char* kName = "StructureBeam";
  static constexpr const char* kDoc = "A beam.";
  static constexpr auto kFields = std::tuple_cat(
      ElementFields<command::Beam>(kPointsDoc),
      std::tuple{Field{"boundary", &command::Beam::boundary, "The boundary; it may be empty."}});
};

template <>
struct Described<command::Wall> {
  static constexpr const char* kName = "StructureWall";
  static constexpr const char* kDoc = "A wall.";
  static constexpr auto kFields = std::tuple_cat(
      ElementFields<command::Wall>(kPointsDoc),
      std::tuple{Field{"closed", &command::Wall::closed, "True if the last point joins the first."},
                 Field{"windows", &command::Wall::windows,
                       "The windows, and openings that nothing fills."},
                 Field{"doors", &command::Wall::doors, "The doors."}});
};

template <>
struct Described<command::Plate> {
  static constexpr const char* kName = "StructurePlate";
  static constexpr const char* kDoc = "A plate.";
  static constexpr auto kFields =
      std::tuple_cat(ElementFields<command::Plate>(kPointsDoc),
                     std::tuple{Field{"holes", &command::Plate::holes, "The openings."}});
};

template <>
struct Described<command::Foot> {
  static constexpr const char* kName = "StructureFoot";
  static constexpr const char* kDoc = "A footing.";
  static constexpr auto kFields = ElementFields<command::Foot>(
      "The location of the footing: an array of shape (1, 3), in metres.");
};

template <>
struct Described<command::Section> {
  static constexpr const char* kName = "StructureSection";
  static constexpr const char* kDoc = "A cross-section.";
  static constexpr auto kFields = std::tuple{
      Field{"name", &command::Section::name, "The name, such as 'IFC_R_30x50'."},
      Field{"kind", &command::Section::kind, "1 rectangle, 2 circle, 3 T, 8 polygon, 9 thickness."},
      Field{"sizes", &command::Section::sizes,
            "The names and the values of the sizes, in metres."}};
};

template <>
struct Described<command::Structure> {
  static constexpr const char* kName = "Structure";
  static constexpr const char* kDoc =
      "The structure of a model: storeys, columns, beams, walls, plates, foots and sections.\n"
      "\n"
      "Geometry of elements is in metres and world coordinates. It does not need its model.";
  static constexpr auto kFields = std::tuple{
      Field{"release", &command::Structure::release, "The release of the schema, such as '2x3'."},
      Field{"storeys", &command::Structure::storeys, "The storeys, in ascending order of levels."},
      Field{"columns", &command::Structure::columns, "The columns."},
      Field{"beams", &command::Structure::beams, "The beams and members."},
      Field{"walls", &command::Structure::walls, "The walls."},
      Field{"plates", &command::Structure::plates, "The slabs."},
      Field{"foots", &command::Structure::foots, "The footings."},
      Field{"sections", &command::Structure::sections, "The sections of the elements."}};
};

}  // namespace KelIFC::python

#endif  // PYTHON_SOURCE_STRUCTURE_FIELDS_H_
