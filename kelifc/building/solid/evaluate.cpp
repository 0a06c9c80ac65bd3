#include "kelifc/building/solid/evaluate.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "kelifc/building/solid/boolean.h"
#include "kelifc/building/solid/half_space.h"
#include "kelifc/building/solid/key_writer.h"
#include "kelifc/building/solid/mesh_tools.h"
#include "kelifc/building/solid/vector_math.h"

namespace KelIFC::building {

namespace {

bool IsUsable(const Transform3& map) {
  return building::IsUsable(map.x) && building::IsUsable(map.y) && building::IsUsable(map.z) &&
         building::IsUsable(map.origin);
}

/// The makers of the solids that need no other one.
struct Maker {
  const Transform3& map;
  std::size_t maxPoints;

  MadeMesh operator()(const Unreadable& form) const { return MadeMesh(form.reason, form.at); }
  MadeMesh operator()(const Extrusion& form) const { return MakeExtrusion(form, map, maxPoints); }
  MadeMesh operator()(const Revolution& form) const { return MakeRevolution(form, map, maxPoints); }
  MadeMesh operator()(const SweptDisk& form) const { return MakeSweptDisk(form, map, maxPoints); }
  MadeMesh operator()(const SweptCurve& form) const { return MakeSweptCurve(form, map, maxPoints); }
  MadeMesh operator()(const Shells& form) const { return MakeShells(form, map, maxPoints); }
  MadeMesh operator()(const Primitive& form) const { return MakePrimitive(form, map, maxPoints); }

  // A half-space has no boundary of its own; the others are made from other items.
  MadeMesh operator()(const HalfSpace&) const { return MadeMesh(LossReason::kUnsupportedItem); }
  MadeMesh operator()(const BooleanResult&) const { return MadeMesh(LossReason::kUnsupportedItem); }
  MadeMesh operator()(const MappedItems&) const { return MadeMesh(LossReason::kUnsupportedItem); }
};

void AddFlags(const EvaluatedBody& from, EvaluatedBody& to) {
  to.isExact = to.isExact && from.isExact;
  to.hasBoolean = to.hasBoolean || from.hasBoolean;
  to.isSurfaceModel = to.isSurfaceModel || from.isSurfaceModel;
  to.mappedDepth = std::max(to.mappedDepth, from.mappedDepth);
}

const HalfSpace* HalfSpaceOf(const SolidPointer& solid) {
  return solid == nullptr ? nullptr : std::get_if<HalfSpace>(&solid->form);
}

}  // namespace

bool Evaluation::Refuse(LossReason reason, std::size_t at) {
  if (reason == LossReason::kLimit) {
    isOverLimit = true;
    fault = {reason, at};
  } else if (!hasFault && !isOverLimit) {
    fault = {reason, at};
  }
  hasFault = true;
  return false;
}

std::size_t Evaluation::PointsLeft() const {
  return pointCount < limits.maxPoints ? limits.maxPoints - pointCount : 0;
}

bool Evaluation::Add(const std::vector<SolidPointer>& items, const Transform3& map,
                     std::size_t depth, EvaluatedBody& body) {
  const std::size_t before = body.solidCount;
  bool isWhole = true;
  for (const SolidPointer& item : items) {
    if (item == nullptr) continue;
    // Maps of maps may lead to the same item any number of times.
    if (++visits > limits.maxPoints || depth > limits.maxDepth) {
      return Refuse(LossReason::kLimit, item->id);
    }
    const bool isAdded = AddOne(*item, map, depth, body);
    if (isOverLimit) return false;
    isWhole = isWhole && isAdded;
  }
  if (!isWhole) body.isExact = false;
  return body.solidCount > before;
}

bool Evaluation::AddOne(const Solid& solid, const Transform3& map, std::size_t depth,
                        EvaluatedBody& body) {
  if (!IsUsable(map)) return Refuse(LossReason::kNotFinite, solid.id);
  if (const auto* mapped = std::get_if<MappedItems>(&solid.form)) {
    return AddMapped(*mapped, map, depth, body);
  }
  if (const auto* boolean = std::get_if<BooleanResult>(&solid.form)) {
    return AddBoolean(solid, *boolean, map, depth, body);
  }
  if (const auto* shells = std::get_if<Shells>(&solid.form)) {
    body.isSurfaceModel = body.isSurfaceModel || shells->isSurface;
  }
  return AddMade(std::visit(Maker{map, PointsLeft()}, solid.form), solid, body);
}

bool Evaluation::AddMade(MadeMesh made, const Solid& solid, EvaluatedBody& body) {
  if (made.fault) return Refuse(*made.fault, made.at != 0 ? made.at : solid.id);
  pointCount += made.mesh.points.size();
  if (pointCount > limits.maxPoints) return Refuse(LossReason::kLimit, solid.id);
  body.isExact = body.isExact && made.isExact;
  Append(body.mesh, std::move(made.mesh));
  ++body.solidCount;
  return true;
}

bool Evaluation::AddMapped(const MappedItems& form, const Transform3& map, std::size_t depth,
                           EvaluatedBody& body) {
  const std::size_t outerDepth = body.mappedDepth;
  body.mappedDepth = 0;
  const std::size_t count = body.solidCount;
  const bool isAdded = Add(form.items, Combine(map, form.transform), depth + 1, body);
  body.mappedDepth = std::max(outerDepth, body.solidCount > count ? body.mappedDepth + 1 : 0);
  return isAdded;
}

bool Evaluation::AddBoolean(const Solid& solid, const BooleanResult& form, const Transform3& map,
                            std::size_t depth, EvaluatedBody& body) {
  // Cutters and faces are parallel to the axes of the item more often than to those of the world.
  EvaluatedBody own;
  if (!OperateOnce(form, depth, own)) {
    return hasFault ? false : Refuse(LossReason::kUnsupportedItem, solid.id);
  }
  if (own.mesh.IsEmpty()) return Refuse(LossReason::kDegenerate, solid.id);
  Mesh moved = Moved(std::move(own.mesh), map);
  for (const Point3& p : moved.points) {
    if (!building::IsUsable(p)) return Refuse(LossReason::kNotFinite, solid.id);
  }
  pointCount += moved.points.size();
  if (pointCount > limits.maxPoints) return Refuse(LossReason::kLimit, solid.id);
  AddFlags(own, body);
  body.hasBoolean = true;
  Append(body.mesh, std::move(moved));
  ++body.solidCount;
  return true;
}

bool Evaluation::CutByHalfSpace(const HalfSpace& cutter, bool keepsInside, EvaluatedBody& body) {
  Mesh cut;
  const bool wasClosed = IsClosed(body.mesh);
  const double volume = VolumeOf(body.mesh);
  bool isDone = building::CutByHalfSpace(body.mesh, cutter, keepsInside, cut);
  if (isDone && wasClosed && !cut.IsEmpty()) {
    const double left = VolumeOf(cut);
    isDone = IsClosed(cut) && left > -1e-6 * volume && left < volume * (1.0 + 1e-6);
  }
  if (isDone) {
    body.mesh = std::move(cut);
  } else {
    body.isExact = false;
  }
  return true;
}

// An operation within another one is a part of its result and not kept on its own. What had a fault
// or may come near a limit is computed, so that faults and limits are the same with the cache.
bool Evaluation::OperateOnce(const BooleanResult& form, std::size_t depth, EvaluatedBody& body) {
  if (operations == nullptr || isOperating || hasFault) return Operate(form, depth, body);
  std::string& key = operations->Buffer();
  KeyWriter writer(key);
  writer.Add(depth);
  writer.Add(form);
  if (!writer.IsUsable()) return Operate(form, depth, body);
  const DoneOperation* const known = operations->Find(key);
  if (known != nullptr && Reuse(*known, body)) return true;
  const std::size_t pointsBefore = pointCount;
  const std::size_t visitsBefore = visits;
  isOperating = true;
  const bool isDone = Operate(form, depth, body);
  isOperating = false;
  if (isDone && known == nullptr && !hasFault) {
    operations->Keep(key, {body, pointCount - pointsBefore, visits - visitsBefore});
  }
  return isDone;
}

bool Evaluation::Reuse(const DoneOperation& done, EvaluatedBody& body) {
  constexpr std::size_t kRoom = 8;  // solids are refused before they are made, by an upper bound
  const std::size_t most = limits.maxPoints / kRoom;
  if (pointCount + done.points > most || visits + done.visits > most) return false;
  pointCount += done.points;
  visits += done.visits;
  body = done.body;
  return true;
}

bool Evaluation::Operate(const BooleanResult& form, std::size_t depth, EvaluatedBody& body) {
  SolidPointer first = form.first;
  SolidPointer second = form.second;
  // Of an intersection or a union the operands may change places.
  if (HalfSpaceOf(first) != nullptr && form.operation != BooleanOperation::kDifference) {
    std::swap(first, second);
  }
  if (first == nullptr) return false;
  if (!Add({first}, Transform3(), depth + 1, body)) return false;
  if (const HalfSpace* cutter = HalfSpaceOf(second)) {
    if (form.operation != BooleanOperation::kUnion) {
      return CutByHalfSpace(*cutter, form.operation == BooleanOperation::kIntersection, body);
    }
    // A union with a half-space has no end.
    body.isExact = false;
    return true;
  }
  return CombineWith(second, form.operation, depth, body);
}

bool Evaluation::CombineWith(const SolidPointer& second, BooleanOperation operation,
                             std::size_t depth, EvaluatedBody& body) {
  // What is wrong with the second operand is no fault of the item.
  const bool hadFault = std::exchange(hasFault, false);
  const Unreadable oldFault = fault;
  EvaluatedBody other;
  const bool isMade = second != nullptr && Add({second}, Transform3(), depth + 1, other);
  if (isOverLimit) return false;
  const bool hasNoVolume = hasFault && fault.reason == LossReason::kDegenerate;
  hasFault = hadFault;
  fault = oldFault;
  if (!isMade) {
    const bool changesNothing = hasNoVolume && operation != BooleanOperation::kIntersection;
    body.isExact = body.isExact && changesNothing;
    return true;
  }
  Mesh combined;
  if (Combine(body.mesh, other.mesh, operation, combined)) {
    body.isExact = body.isExact && other.isExact;
    body.mesh = std::move(combined);
  } else {
    body.isExact = false;
  }
  return true;
}

}  // namespace KelIFC::building
