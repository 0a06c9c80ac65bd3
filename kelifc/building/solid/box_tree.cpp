#include "kelifc/building/solid/box_tree.h"

#include <algorithm>
#include <numeric>

#include "kelifc/building/solid/vector_math.h"

namespace KelIFC::building {

namespace {

constexpr std::uint32_t kLeafSize = 4;

double CentreAlong(const BuildingBox& box, int axis) {
  if (axis == 0) return box.min.x + box.max.x;
  return axis == 1 ? box.min.y + box.max.y : box.min.z + box.max.z;
}

int LongestAxis(const BuildingBox& box) {
  const Vector3 size = box.max - box.min;
  if (size.x >= size.y && size.x >= size.z) return 0;
  return size.y >= size.z ? 1 : 2;
}

}  // namespace

BoxTree::BoxTree(const std::vector<BuildingBox>& boxes) : items(boxes.size()) {
  if (boxes.empty()) return;
  std::iota(items.begin(), items.end(), 0U);
  nodes.reserve(boxes.size());
  Build(boxes, 0, static_cast<std::uint32_t>(boxes.size()));
}

// Recursion halves the number of items, so that its depth is at most 32.
void BoxTree::Build(const std::vector<BuildingBox>& boxes, std::uint32_t first,
                    std::uint32_t count) {
  const std::size_t at = nodes.size();
  nodes.emplace_back();
  BuildingBox box;
  for (std::uint32_t i = first; i < first + count; ++i) Extend(box, boxes[items[i]]);
  nodes[at].box = box;
  nodes[at].first = first;
  nodes[at].count = count;
  if (count <= kLeafSize) return;
  const int axis = LongestAxis(box);
  const auto middle = items.begin() + first + count / 2;
  std::nth_element(items.begin() + first, middle, items.begin() + first + count,
                   [&](std::uint32_t a, std::uint32_t b) {
                     const double left = CentreAlong(boxes[a], axis);
                     const double right = CentreAlong(boxes[b], axis);
                     return left < right || (left == right && a < b);
                   });
  Build(boxes, first, count / 2);
  nodes[at].right = static_cast<std::uint32_t>(nodes.size());
  Build(boxes, first + count / 2, count - count / 2);
}

}  // namespace KelIFC::building
