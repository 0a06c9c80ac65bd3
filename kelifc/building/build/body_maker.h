#ifndef KELIFC_BUILDING_BUILD_BODY_MAKER_H_
#define KELIFC_BUILDING_BUILD_BODY_MAKER_H_

#include <cstddef>
#include <unordered_map>
#include <vector>

#include "kelifc/building/facts/solid_facts.h"
#include "kelifc/building/facts/transform3.h"
#include "kelifc/building/read_building.h"
#include "kelifc/building/solid/body.h"
#include "kelifc/building/solid/operation_cache.h"

namespace KelIFC::building {

/// Makes the bodies of a model, with its limits. A representation that several products map is
/// evaluated once, in its own coordinates, and moved to each place.
class BodyMaker {
 public:
  explicit BodyMaker(const ReadingOptions& options)
      : pointsLeft(options.maxPoints),
        maxBodyPoints(options.maxBodyPoints),
        depth(options.maxDepth) {}

  /// Announces one call of Make. Only what was announced more than once is shared.
  void Announce(const std::vector<SolidPointer>& items);

  /// Makes a body in the coordinates to which `placement` leads. The fault is kLimit after the
  /// bodies of the model have too many points.
  BodyResult Make(const std::vector<SolidPointer>& items, const Transform3& placement);

  /// True if Make would move a shared body to its place. Rounding makes it differ from a body that
  /// is made where it is used.
  bool IsMoved(const std::vector<SolidPointer>& items, const Transform3& placement);

  /// Replaces a call of Make, for a caller that has the body already. `points` is the number of its
  /// points.
  void Skip(const std::vector<SolidPointer>& items, const Transform3& placement,
            std::size_t points);

  /// True if the limit of the model does not restrict the next body.
  bool HasRoom() const { return pointsLeft >= maxBodyPoints; }

 private:
  struct Shared {
    std::size_t usesLeft = 0;
    bool isMade = false;
    bool isMoved = false;  // at least one use was moved, so the last one is, too
    std::vector<SolidPointer> items;
    BodyResult result;  // in the coordinates of the items
  };

  /// What a call of Make uses of the shared bodies.
  struct Use {
    Shared* entry = nullptr;  // null if the items are not shared
    const Solid* first = nullptr;
    Transform3 motion;
    bool isMoved = false;  // the shared body is moved by `motion`
  };

  Use FindUse(const std::vector<SolidPointer>& items, const Transform3& placement);
  void Finish(const Use& use);
  BodyResult Evaluate(const std::vector<SolidPointer>& items, const Transform3& placement);
  void Charge(std::size_t points);

  // The key is the first of the mapped items. It is compared and never ordered, so results do not
  // depend on addresses.
  std::unordered_map<const Solid*, Shared> shared;
  // What is beyond the limit of one body, by the first item. It is not evaluated again.
  std::unordered_map<const Solid*, std::vector<SolidPointer>> tooLarge;
  OperationCache operations;
  std::size_t pointsLeft;
  std::size_t maxBodyPoints;
  std::size_t depth;
};

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_BUILD_BODY_MAKER_H_
