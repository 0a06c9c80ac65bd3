#ifndef PYTHON_SOURCE_STRUCTURE_FIELDS_H_
#define PYTHON_SOURCE_STRUCTURE_FIELDS_H_

#include <optional>
#include <string>
#include <vector>

#include "python/source/described.h"
#include "tools/kelifc/structure.h"

// The values of the structure as Python shows them.

namespace KelIFC::python {

template <>
inline constexpr auto kDescribed<command::Storey> = Describe(
    "StructureStorey", "A storey. Its level and its height are in the unit of the file.",
    Field{"number", &command::Storey::number,
          "0 for the lowest storey at or above level 0; those below are negative."},
    Field{"name", &command::Storey::name, "The name of the storey."},
    Field{"level", &command::Storey::level, "The height of the placement of the storey."},
    Field{"height", &command::Storey::height, "The difference to the level of the next storey."});

/// Describes an element: the fields that all elements have, then its own.
template <class T, class... Fields>
constexpr auto DescribeElement(const char* name, const char* doc, const char* points,
                               Fields... own) {
  return Describe(
      name, doc, Field{"name", static_cast<std::string T::*>(&T::name), "The name."},
      Field{"guid", static_cast<std::string T::*>(&T::guid),
            "The identifier, such as '{00112233-4455-6677-8899-AABBCCDDEEFF}'."},
      Field{"section", static_cast<std::string T::*>(&T::section), "The name of the section."},
      Field{"storey", static_cast<std::optional<int> T::*>(&T::storey),
            "The number of the storey, or None if no storey contains the element."},
      Field{"points", static_cast<std::vector<command::Point> T::*>(&T::points), points}, own...);
}

constexpr const char* kPointsDoc = "An array of shape (n, 3), in metres.";

template <>
inline constexpr auto kDescribed<command::Element> = DescribeElement<command::Element>(
    "StructureElement", "A column, a window, a door or a hole.", kPointsDoc);

template <>
inline constexpr auto kDescribed<command::Boundary> = Describe(
    "Boundary", "The boundary of a beam with a faceted solid.",
    Field{"points", &command::Boundary::points, kPointsDoc},
    Field{"faces", &command::Boundary::faces, "The numbers of the points of each face, from 1."});

template <>
inline constexpr auto kDescribed<command::Beam> = DescribeElement<command::Beam>(
    "StructureBeam", "A beam.", kPointsDoc,
    Field{"boundary", &command::Beam::boundary, "The boundary; it may be empty."});

template <>
inline constexpr auto kDescribed<command::Wall> = DescribeElement<command::Wall>(
    "StructureWall", "A wall.", kPointsDoc,
    Field{"closed", &command::Wall::closed, "True if the last point joins the first."},
    Field{"windows", &command::Wall::windows, "The windows, and openings that nothing fills."},
    Field{"doors", &command::Wall::doors, "The doors."});

template <>
inline constexpr auto kDescribed<command::Plate> =
    DescribeElement<command::Plate>("StructurePlate", "A plate.", kPointsDoc,
                                    Field{"holes", &command::Plate::holes, "The openings."});

template <>
inline constexpr auto kDescribed<command::Foot> = DescribeElement<command::Foot>(
    "StructureFoot", "A footing.",
    "The location of the footing: an array of shape (1, 3), in metres.");

template <>
inline constexpr auto kDescribed<command::Section> = Describe(
    "StructureSection", "A cross-section.",
    Field{"name", &command::Section::name, "The name, such as 'IFC_R_30x50'."},
    Field{"kind", &command::Section::kind, "1 rectangle, 2 circle, 3 T, 8 polygon, 9 thickness."},
    Field{"sizes", &command::Section::sizes, "The names and the values of the sizes, in metres."});

template <>
inline constexpr auto kDescribed<command::Structure> = Describe(
    "Structure",
    "The structure of a model: storeys, columns, beams, walls, plates, foots and sections.\n"
    "\n"
    "Geometry of elements is in metres and world coordinates. It does not need its model.",
    Field{"release", &command::Structure::release, "The release of the schema, such as '2x3'."},
    Field{"storeys", &command::Structure::storeys, "The storeys, in ascending order of levels."},
    Field{"columns", &command::Structure::columns, "The columns."},
    Field{"beams", &command::Structure::beams, "The beams and members."},
    Field{"walls", &command::Structure::walls, "The walls."},
    Field{"plates", &command::Structure::plates, "The slabs."},
    Field{"foots", &command::Structure::foots, "The footings."},
    Field{"sections", &command::Structure::sections, "The sections of the elements."});

}  // namespace KelIFC::python

#endif  // PYTHON_SOURCE_STRUCTURE_FIELDS_H_
