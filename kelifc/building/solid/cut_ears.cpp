#include "kelifc/building/solid/cut_ears.h"

#include <cstddef>

#include "kelifc/building/solid/box_tree.h"
#include "kelifc/building/solid/vector_math.h"

namespace KelIFC::building {
namespace {

bool AreEqual(const Point2& a, const Point2& b) { return a.x == b.x && a.y == b.y; }

/// Cuts ears off a ring.
class EarCutter {
 public:
  explicit EarCutter(PolygonRing& someRing)
      : ring(someRing), budget(1000 + 100 * ring.point.size()), patience(budget) {
    FindReflexNodes();
  }

  std::vector<Triangle2> Cut(ClockwiseParts clockwise) {
    std::vector<Triangle2> result;
    std::uint32_t node = 0;
    std::size_t left = CountFrom(node);
    std::size_t failures = 0;
    while (left >= 3) {
      const bool isForced = failures > left;
      if (isForced ? IsTolerable(node, failures > 2 * left) : IsEar(node)) {
        const std::uint32_t a = ring.previous[node];
        const std::uint32_t c = ring.next[node];
        const double turn = TurnAt(node);
        if (turn > 0.0 || (turn < 0.0 && clockwise == ClockwiseParts::kKept)) {
          result.push_back({ring.point[a], ring.point[node], ring.point[c]});
        }
        ring.next[a] = c;
        ring.previous[c] = a;
        isGone[node] = true;
        --left;
        if (patience > 0) failures = 0;
        node = ring.next[c];
      } else {
        ++failures;
        if (patience > 0) --patience;
        node = ring.next[node];
      }
    }
    return result;
  }

 private:
  double TurnAt(std::uint32_t node) const {
    return Turn(ring.At(ring.previous[node]), ring.At(node), ring.At(ring.next[node]));
  }

  std::size_t CountFrom(std::uint32_t start) const {
    std::size_t count = 1;
    for (std::uint32_t i = ring.next[start]; i != start; i = ring.next[i]) ++count;
    return count;
  }

  void FindReflexNodes() {
    isGone.assign(ring.point.size(), false);
    std::vector<BuildingBox> boxes;
    for (std::uint32_t i = 0; i < ring.point.size(); ++i) {
      if (TurnAt(i) > 0.0) continue;
      reflex.push_back(i);
      Extend(boxes.emplace_back(), Point3(ring.At(i).x, ring.At(i).y, 0.0));
    }
    tree = BoxTree(boxes);
  }

  /// A vertex without a reflex node in its triangle. Vertices on a straight line are cut off, too.
  bool IsEar(std::uint32_t node) {
    const double turn = TurnAt(node);
    if (turn == 0.0) return true;
    if (turn < 0.0) return false;
    if (budget == 0 || reflex.empty()) return true;
    const std::array<Point2, 3> corners = {ring.At(ring.previous[node]), ring.At(node),
                                           ring.At(ring.next[node])};
    BuildingBox box;
    for (const Point2& corner : corners) Extend(box, Point3(corner.x, corner.y, 0.0));
    bool isFree = true;
    tree.ForEachNear(box, 0.0, [&](std::uint32_t item) {
      if (!isFree || isGone[reflex[item]]) return;
      if (budget > 0) --budget;
      if (IsInside(ring.At(reflex[item]), corners)) isFree = false;
    });
    return isFree;
  }

  static bool IsInside(const Point2& p, const std::array<Point2, 3>& corners) {
    if (AreEqual(p, corners[0]) || AreEqual(p, corners[1]) || AreEqual(p, corners[2])) return false;
    return Turn(corners[0], corners[1], p) >= 0.0 && Turn(corners[1], corners[2], p) >= 0.0 &&
           Turn(corners[2], corners[0], p) >= 0.0;
  }

  /// What is cut off where no vertex is an ear, as in a region that crosses itself.
  bool IsTolerable(std::uint32_t node, bool isDesperate) const {
    return isDesperate || TurnAt(node) > 0.0;
  }

  PolygonRing& ring;
  std::vector<bool> isGone;
  std::vector<std::uint32_t> reflex;
  BoxTree tree;
  std::size_t budget = 0;
  std::size_t patience = 0;  // without it, nodes are cut off in their order
};

}  // namespace

std::vector<Triangle2> CutEars(PolygonRing& ring, ClockwiseParts clockwise) {
  return EarCutter(ring).Cut(clockwise);
}

}  // namespace KelIFC::building
