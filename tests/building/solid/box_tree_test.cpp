#include "kelifc/building/solid/box_tree.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

#include "kelifc/building/solid/vector_math.h"

namespace KelIFC::building {
namespace {

std::vector<BuildingBox> RandomBoxes(std::size_t count) {
  std::mt19937 random(9);
  const auto next = [&] { return static_cast<double>(random() % 1000) / 10.0; };
  std::vector<BuildingBox> boxes(count);
  for (BuildingBox& box : boxes) {
    const Point3 corner = {next(), next(), next()};
    Extend(box, corner);
    Extend(box, corner + Vector3(next() / 10.0, next() / 10.0, next() / 10.0));
  }
  return boxes;
}

TEST(BoxTree, FindsWhatIsNear) {
  const std::vector<BuildingBox> boxes = RandomBoxes(500);
  const BoxTree tree(boxes);
  for (const BuildingBox& query : RandomBoxes(50)) {
    std::set<std::uint32_t> found;
    tree.ForEachNear(query, 0.5, [&](std::uint32_t item) { found.insert(item); });
    for (std::uint32_t i = 0; i < boxes.size(); ++i) {
      if (AreNear(boxes[i], query, 0.5)) {
        EXPECT_EQ(found.count(i), 1U);
      }
    }
    EXPECT_LT(found.size(), boxes.size());
  }
}

TEST(BoxTree, VisitsNothingBeyondTheBound) {
  std::vector<BuildingBox> boxes(1000);
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    Extend(boxes[i], Point3(static_cast<double>(i), 0.0, 0.0));
  }
  const BoxTree tree(boxes);
  std::size_t visits = 0;
  double best = 1e300;
  tree.Search([](const BuildingBox& box) { return box.min.x; },
              [&](std::uint32_t item) {
                ++visits;
                best = std::min(best, boxes[item].min.x);
                return best;
              });
  EXPECT_EQ(best, 0.0);
  EXPECT_LT(visits, 10U);
}

TEST(BoxTree, OfNothingOrOfEqualBoxesWorks) {
  BoxTree().ForEachNear(BuildingBox(), 1.0, [](std::uint32_t) { FAIL(); });
  std::vector<BuildingBox> boxes(5000);
  for (BuildingBox& box : boxes) Extend(box, Point3(1.0, 1.0, 1.0));
  std::size_t count = 0;
  BoxTree(boxes).ForEachNear(boxes[0], 0.0, [&](std::uint32_t) { ++count; });
  EXPECT_EQ(count, boxes.size());
}

}  // namespace
}  // namespace KelIFC::building
