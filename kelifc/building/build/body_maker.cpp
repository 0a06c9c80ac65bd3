#include "kelifc/building/build/body_maker.h"

#include <algorithm>
#include <cmath>

namespace KelIFC::building {
namespace {

/// The map of items that consist of one map; null otherwise.
const MappedItems* OnlyMap(const std::vector<SolidPointer>& items) {
  if (items.size() != 1 || items.front() == nullptr) return nullptr;
  const auto* map = std::get_if<MappedItems>(&items.front()->form);
  return map == nullptr || map->items.empty() || map->items.front() == nullptr ? nullptr : map;
}

/// True if a transform keeps lengths and orientation, so that a body that was made before it is the
/// body that would be made after it.
bool IsMotion(const Transform3& t) {
  constexpr double kTolerance = 1e-9;
  const auto isUnit = [](const Vector3& v) { return std::abs(Dot(v, v) - 1.0) <= kTolerance; };
  const auto isSquare = [](const Vector3& a, const Vector3& b) {
    return std::abs(Dot(a, b)) <= kTolerance;
  };
  return isUnit(t.x) && isUnit(t.y) && isUnit(t.z) && isSquare(t.x, t.y) && isSquare(t.y, t.z) &&
         isSquare(t.z, t.x) && t.Determinant() > 0.0;
}

void Move(EvaluatedBody& body, const Transform3& motion) {
  for (Point3& point : body.mesh.points) point = motion(point);
  body.box = BoxOf(body.mesh);
  ++body.mappedDepth;
}

BodyResult Fault(LossReason reason, const std::vector<SolidPointer>& items) {
  BodyResult result;
  result.fault = Unreadable{reason, items.empty() || !items.front() ? 0 : items.front()->id};
  return result;
}

}  // namespace

BodyMaker::Shared* BodyMaker::FindShared(const std::vector<SolidPointer>& items) {
  const auto found = shared.find(items.front().get());
  return found == shared.end() || found->second.items != items ? nullptr : &found->second;
}

void BodyMaker::Announce(const std::vector<SolidPointer>& items) {
  const MappedItems* map = OnlyMap(items);
  if (map == nullptr) return;
  Shared& entry = shared[map->items.front().get()];
  if (entry.usesLeft == 0) entry.items = map->items;
  if (entry.items == map->items) ++entry.usesLeft;
}

BodyResult BodyMaker::Make(const std::vector<SolidPointer>& items, const Transform3& placement) {
  if (pointsLeft == 0) return Fault(LossReason::kLimit, items);
  const MappedItems* map = OnlyMap(items);
  Shared* const entry = map == nullptr ? nullptr : FindShared(map->items);
  if (entry == nullptr) return Evaluate(items, placement);

  const bool isLast = --entry->usesLeft == 0;
  const Transform3 motion = Combine(placement, map->transform);
  BodyResult result;
  if ((isLast && !entry->isMade) || !IsMotion(motion)) {
    result = Evaluate(items, placement);
  } else {
    if (!entry->isMade) entry->result = Evaluate(map->items, Transform3());
    entry->isMade = true;
    result = entry->result;
    if (!result.fault) Move(result.body, motion);
    Charge(result.body.mesh.points.size());
  }
  if (isLast) shared.erase(map->items.front().get());
  return result;
}

BodyResult BodyMaker::Evaluate(const std::vector<SolidPointer>& items,
                               const Transform3& placement) {
  const Solid* const first = items.empty() ? nullptr : items.front().get();
  const auto known = tooLarge.find(first);
  if (known != tooLarge.end() && known->second == items) return Fault(LossReason::kLimit, items);
  BodyLimits limits;
  limits.maxPoints = std::min(pointsLeft, maxBodyPoints);
  limits.maxDepth = depth;
  BodyResult result = EvaluateBody(items, placement, limits, &operations);
  // A body that is beyond the limit took as much work as one that is as large as the limit.
  const bool isBeyond = result.fault && result.fault->reason == LossReason::kLimit;
  if (isBeyond && limits.maxPoints == maxBodyPoints) tooLarge.emplace(first, items);
  Charge(isBeyond ? limits.maxPoints : result.body.mesh.points.size());
  return result;
}

void BodyMaker::Charge(std::size_t points) { pointsLeft -= std::min(pointsLeft, points); }

}  // namespace KelIFC::building
