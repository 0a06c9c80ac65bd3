#ifndef TOOLS_KELIFC_STRUCTURE_H_
#define TOOLS_KELIFC_STRUCTURE_H_

#include <array>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace command {

// The structure as plain values. It is read once from the object model and then printed as a table
// or as JSON. Text is UTF-8. Geometry of elements is in metres and world coordinates. Levels and
// heights of storeys are in the unit of the file.

using Point = std::array<double, 3>;

struct Storey {
  int number = 0;
  std::string name;
  double level = 0.0;
  double height = 0.0;
};

/// The values that every element has.
struct Element {
  std::string name;
  std::string guid;  ///< such as "{00112233-4455-6677-8899-AABBCCDDEEFF}"
  std::string section;
  std::optional<int> storey;  ///< unset if no storey contains the element
  std::vector<Point> points;
};

struct Boundary {
  std::vector<Point> points;
  std::vector<std::vector<long>> faces;  ///< the numbers of the points of each face, from 1
};

struct Beam : Element {
  Boundary boundary;
};

struct Wall : Element {
  bool closed = false;
  std::vector<Element> windows;
  std::vector<Element> doors;
};

struct Plate : Element {
  std::vector<Element> holes;
};

/// It has one point, its location.
struct Foot : Element {};

struct Section {
  std::string name;
  long kind = 0;
  /// The names and values of its sizes in metres, in the order of the output. A polygon has none.
  std::vector<std::pair<const char*, double>> sizes;
};

struct Structure {
  std::string release;
  std::vector<Storey> storeys;
  std::vector<Element> columns;
  std::vector<Beam> beams;
  std::vector<Wall> walls;
  std::vector<Plate> plates;
  std::vector<Foot> foots;
  std::vector<Section> sections;
};

}  // namespace command

#endif  // TOOLS_KELIFC_STRUCTURE_H_
