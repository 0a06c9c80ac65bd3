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

BodyMaker::Use BodyMaker::FindUse(const std::vector<SolidPointer>& items,
                                  const Transform3& placement) {
  const MappedItems* const map = OnlyMap(items);
  const auto found = map == nullptr ? shared.end() : shared.find(map->items.front().get());
  if (found == shared.end() || found->second.items != map->items) return {};
  Shared& entry = found->second;
  const Transform3 motion = Combine(placement, map->transform);
  // A body with only one use left is made where it is used, unless an earlier use was moved.
  const bool isMoved = (entry.isMoved || entry.usesLeft > 1) && IsMotion(motion);
  return {&entry, map->items.front().get(), motion, isMoved};
}

void BodyMaker::Announce(const std::vector<SolidPointer>& items) {
  const MappedItems* map = OnlyMap(items);
  if (map == nullptr) return;
  Shared& entry = shared[map->items.front().get()];
  if (entry.usesLeft == 0) entry.items = map->items;
  if (entry.items == map->items) ++entry.usesLeft;
}

void BodyMaker::Finish(const Use& use) {
  if (use.entry == nullptr) return;
  use.entry->isMoved = use.entry->isMoved || use.isMoved;
  if (--use.entry->usesLeft == 0) shared.erase(use.first);
}

BodyResult BodyMaker::Make(const std::vector<SolidPointer>& items, const Transform3& placement) {
  if (pointsLeft == 0) return Fault(LossReason::kLimit, items);
  const Use use = FindUse(items, placement);
  BodyResult result;
  if (!use.isMoved) {
    result = Evaluate(items, placement);
  } else {
    Shared& entry = *use.entry;
    if (!entry.isMade) entry.result = Evaluate(entry.items, Transform3());
    entry.isMade = true;
    result = entry.result;
    if (!result.fault) Move(result.body, use.motion);
    Charge(result.body.mesh.points.size());
  }
  Finish(use);
  return result;
}

bool BodyMaker::IsMoved(const std::vector<SolidPointer>& items, const Transform3& placement) {
  return FindUse(items, placement).isMoved;
}

void BodyMaker::Skip(const std::vector<SolidPointer>& items, const Transform3& placement,
                     std::size_t points) {
  Finish(FindUse(items, placement));
  Charge(points);
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
