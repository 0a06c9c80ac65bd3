#ifndef KELIFC_BUILDING_READ_READ_CONTEXT_H_
#define KELIFC_BUILDING_READ_READ_CONTEXT_H_

#include <cstddef>
#include <optional>

#include "kelifc/building/facts/shared_memory.h"
#include "kelifc/building/facts/solid_facts.h"
#include "kelifc/building/read/instance.h"
#include "kelifc/building/read/units.h"
#include "kelifc/building/read_building.h"

namespace KelIFC::building {

/// What all readers of a model share.
struct ReadContext {
  const Model& model;
  Units units;
  ReadingOptions options;

  /// How many points and steps the curves and shells of the model may still take. Shapes that use
  /// each other many times cannot take more.
  std::size_t budget = 0;

  SharedMemory memory = {};  ///< of solids and profiles

  /// Takes some of the budget; false if there is not enough left.
  bool Spend(std::size_t count) {
    if (count > budget) return false;
    budget -= count;
    return true;
  }
};

/// The nesting of curves and profiles that is followed.
constexpr std::size_t kMaxCurveDepth = 16;

/// The instance that an attribute leads to. None, and `why`, if the reference is dangling or unset.
inline Instance Follow(const Instance& from, Attribute attribute, Unreadable& why) {
  const Value value = from.Get(attribute);
  const Instance target = value.Target();
  if (!target) {
    const bool isDangling = value.TargetNumber() != 0;
    why = {isDangling ? LossReason::kDangling : LossReason::kDegenerate, from.Number()};
  }
  return target;
}

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_READ_READ_CONTEXT_H_
