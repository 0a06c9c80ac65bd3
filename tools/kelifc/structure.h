#ifndef TOOLS_KELIFC_STRUCTURE_H_
#define TOOLS_KELIFC_STRUCTURE_H_

#include <array>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace command {

// The converted structure as plain values, read once from the object model and then printed in
// either form. Text is UTF-8. Element geometry is in metres and world coordinates; the levels and
// heights of storeys are in the unit of the file.

using Point = std::array<double, 3>;

struct Storey {
  int number = 0;
  std::string name;
  double level = 0.0;
  double height = 0.0;
};

/// What every element has.
struct Element {
  std::string name;
  std::string guid;  ///< braced form
  std::string section;
  std::optional<int> storey;  ///< unset for an element in no storey
  std::vector<Point> points;
};

struct Boundary {
  std::vector<Point> points;
  std::vector<std::vector<long>> faces;  ///< numbers of points, from 1
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

/// Its one point is where it stands.
struct Foot : Element {};

struct Section {
  std::string name;
  long kind = 0;
  /// The dimensions of its kind by the names they have in the output, in their order.
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
