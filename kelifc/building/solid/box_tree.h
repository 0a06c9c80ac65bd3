#ifndef KELIFC_BUILDING_SOLID_BOX_TREE_H_
#define KELIFC_BUILDING_SOLID_BOX_TREE_H_

#include <array>
#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

#include "kelifc/building/building.h"

namespace KelIFC::building {

/// A balanced tree over boxes. It is built in n log n time; its depth is at most 32.
class BoxTree {
 public:
  BoxTree() = default;
  explicit BoxTree(const std::vector<BuildingBox>& boxes);

  /// Visits items by rising cost, as far as boxes allow. `key(box)` returns a lower bound of the
  /// cost of everything in a box, infinity to skip it. `use(item)` looks at an item and returns the
  /// bound from now on: what costs more is not visited.
  template <typename Key, typename Use>
  void Search(Key key, Use use) const {
    if (nodes.empty()) return;
    constexpr double kNever = std::numeric_limits<double>::infinity();
    double bound = kNever;
    std::array<std::pair<double, std::uint32_t>, 96> stack;
    std::size_t depth = 0;
    stack[depth++] = {key(nodes[0].box), 0};
    while (depth > 0) {
      const auto [cost, at] = stack[--depth];
      if (cost == kNever || cost > bound) continue;
      const Node& node = nodes[at];
      if (node.right == 0) {
        for (std::uint32_t i = 0; i < node.count; ++i) bound = use(items[node.first + i]);
        continue;
      }
      std::pair<double, std::uint32_t> near = {key(nodes[at + 1].box), at + 1};
      std::pair<double, std::uint32_t> far = {key(nodes[node.right].box), node.right};
      if (far.first < near.first) std::swap(near, far);
      stack[depth++] = far;
      stack[depth++] = near;
    }
  }

  /// Calls `use(item)` for each item whose box comes within `distance` of a box.
  template <typename Use>
  void ForEachNear(const BuildingBox& box, double distance, Use use) const {
    constexpr double kNever = std::numeric_limits<double>::infinity();
    Search(
        [&](const BuildingBox& other) {
          const bool isNear =
              box.min.x <= other.max.x + distance && other.min.x <= box.max.x + distance &&
              box.min.y <= other.max.y + distance && other.min.y <= box.max.y + distance &&
              box.min.z <= other.max.z + distance && other.min.z <= box.max.z + distance;
          return isNear ? 0.0 : kNever;
        },
        [&](std::uint32_t item) {
          use(item);
          return kNever;
        });
  }

 private:
  struct Node {
    BuildingBox box;
    std::uint32_t first = 0;
    std::uint32_t count = 0;
    std::uint32_t right = 0;  // 0 for a leaf; the left child is the next node
  };

  void Build(const std::vector<BuildingBox>& boxes, std::uint32_t first, std::uint32_t count);

  std::vector<Node> nodes;
  std::vector<std::uint32_t> items;
};

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_SOLID_BOX_TREE_H_
