#ifndef EXPORT_SAF_NODE_LIST_H_
#define EXPORT_SAF_NODE_LIST_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "kelifc/geometry/point.h"

namespace KelIFC::exporting::saf {

/// The nodes of the workbook. Points that are not farther from each other than the tolerance share
/// a node, which lies at the first of them.
class NodeList {
 public:
  /// The index of a node.
  using Index = std::uint32_t;

  /// A tolerance below one nanometre, or one that is not finite, counts as one nanometre.
  explicit NodeList(double tolerance);

  /// The nearest node within the tolerance, the first one if two are equally near. Adds a node if
  /// there is none. The coordinates must be finite.
  Index Add(const Point3& point);

  /// How many nodes there are.
  std::size_t GetCount() const { return points.size(); }

  /// Removes the nodes that were added last, so that `count` of them are left.
  void Truncate(std::size_t count);

  const Point3& operator[](std::size_t index) const { return points[index]; }

  /// The name of a node, such as "N1".
  static std::string NameOf(std::size_t index) { return "N" + std::to_string(index + 1); }

  /// The names of nodes as a list, such as "N1; N2".
  static std::string NamesOf(const std::vector<Index>& nodes);

 private:
  struct Cell {
    double x, y, z;  // whole numbers; a double holds those of far points, too
    bool operator==(const Cell& other) const {
      return x == other.x && y == other.y && z == other.z;
    }
  };
  struct CellHash {
    std::size_t operator()(const Cell& cell) const;
  };

  Cell CellOf(const Point3& point) const;
  void Search(const Cell& cell, const Point3& point, Index& nearest, double& distance) const;
  Index FindNearest(const Point3& point) const;

  double tolerance;
  std::vector<Point3> points;
  std::vector<Index> next;  // of each node: the node that was added to its cell before it
  std::unordered_map<Cell, Index, CellHash> cells;  // the node that was added last
};

}  // namespace KelIFC::exporting::saf

#endif  // EXPORT_SAF_NODE_LIST_H_
