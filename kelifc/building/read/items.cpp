#include "kelifc/building/read/items.h"

#include <algorithm>
#include <memory>
#include <string>
#include <utility>

#include "kelifc/building/read/placements.h"

namespace KelIFC::building {
namespace {

// Maps of at most so many items hold them directly. The items of larger ones are shared by all that
// use the map, so that many uses of a large map do not multiply its items.
constexpr std::size_t kMostCopiedItems = 64;

void AddTargets(const Value& list, std::vector<Instance>& targets) {
  for (std::size_t i = 0; i < list.Size(); ++i) {
    if (const Instance target = list[i].Target()) targets.push_back(target);
  }
}

bool IsRepresentation(const Instance& instance) {
  return instance.GetEntity() == Entity::kShapeRepresentation ||
         instance.GetEntity() == Entity::kRepresentation;
}

Instance MappedRepresentation(const Instance& item) {
  return item.Get(Attribute::kMappingSource)
      .Target()
      .Get(Attribute::kMappedRepresentation)
      .Target();
}

}  // namespace

const std::vector<SolidPointer>& ItemReader::ReadItems(const Instance& representation) {
  return Complete(representation).group;
}

SolidPointer ItemReader::ReadShared(const Instance& representation) {
  return Share(Complete(representation), representation.Number());
}

ItemReader::Node& ItemReader::Complete(const Instance& instance) {
  const std::size_t number = instance.Number();
  const auto known = nodes.find(number);
  if (known != nodes.end()) return known->second;
  Push(instance);
  while (!stack.empty()) {
    Frame& top = stack.back();
    if (top.next < top.children.size()) {
      const Instance child = top.children[top.next++];
      if (nodes.find(child.Number()) == nodes.end()) Push(child);
      continue;
    }
    Finish(top);
    stack.pop_back();
  }
  return nodes[number];
}

void ItemReader::Push(const Instance& instance) {
  nodes.try_emplace(instance.Number());
  Frame frame{instance, ChildrenOf(instance), 0};
  if (frame.children.empty()) {
    Finish(frame);
  } else {
    stack.push_back(std::move(frame));
  }
}

std::vector<Instance> ItemReader::ChildrenOf(const Instance& instance) const {
  std::vector<Instance> children;
  const auto add = [&](const Instance& child) {
    if (child) children.push_back(child);
  };
  switch (instance.GetEntity()) {
    case Entity::kShapeRepresentation:
    case Entity::kRepresentation:
      AddTargets(instance.Get(Attribute::kItems), children);
      break;
    case Entity::kMappedItem:
      add(MappedRepresentation(instance));
      break;
    case Entity::kBooleanResult:
    case Entity::kBooleanClippingResult:
      add(instance.Get(Attribute::kFirstOperand).Target());
      add(instance.Get(Attribute::kSecondOperand).Target());
      break;
    case Entity::kCsgSolid:
      add(instance.Get(Attribute::kTreeRoot).Target());
      break;
    default:
      break;
  }
  return children;
}

void ItemReader::Finish(const Frame& frame) {
  const std::size_t number = frame.instance.Number();
  std::size_t height = 0;
  for (const Instance& child : frame.children) {
    const auto found = nodes.find(child.Number());
    if (found != nodes.end()) height = std::max(height, found->second.height);
  }
  Node& node = nodes[number];
  const bool isGroup = IsRepresentation(frame.instance);
  node.height = isGroup ? height : height + 1;
  if (isGroup) {
    FinishGroup(frame, node);
  } else if (node.height > context.options.maxDepth) {
    node.solid = Refuse(LossReason::kLimit, number, number);
  } else if (frame.instance.GetEntity() == Entity::kCsgSolid && !frame.children.empty()) {
    node.solid = SolidOf(frame.instance, frame.children.front());
  } else {
    node.solid = context.memory.Share(Make(frame.instance));
  }
  node.isComplete = true;
}

// Items that are no bodies count only if there are no others.
void ItemReader::FinishGroup(const Frame& frame, Node& node) {
  const Value list = frame.instance.Get(Attribute::kItems);
  std::vector<SolidPointer> others;
  for (std::size_t i = 0; i < list.Size(); ++i) {
    if (list[i].IsDangling()) {
      node.group.push_back(
          Refuse(LossReason::kDangling, frame.instance.Number(), list[i].TargetNumber()));
      continue;
    }
    const Instance item = list[i].Target();
    if (!item) continue;
    (item.Is(kIsNeverBody) ? others : node.group).push_back(SolidOf(frame.instance, item));
  }
  if (node.group.empty()) node.group = std::move(others);
}

SolidPointer ItemReader::Refuse(LossReason reason, std::size_t at, std::size_t id) const {
  return context.memory.Share(Solid{id, Unreadable{reason, at}});
}

// The solid of a node. That of a representation is made at its first use: most are never used.
SolidPointer ItemReader::Share(Node& node, std::size_t number) const {
  if (!node.solid) {
    node.solid = context.memory.Share(Solid{number, MappedItems{Transform3(), node.group}});
  }
  return node.solid;
}

// The solid of an item that has been read. One that is being read contains its user.
SolidPointer ItemReader::SolidOf(const Instance& user, const Instance& item) {
  const auto found = nodes.find(item.Number());
  if (found != nodes.end() && found->second.isComplete) return Share(found->second, item.Number());
  return Refuse(LossReason::kCycle, user.Number(), item.Number());
}

Solid ItemReader::Make(const Instance& item) {
  struct Row {
    Entity entity;
    void (ItemReader::*read)(const Instance&, Solid&, Unreadable&);
  };
  static constexpr Row kRows[] = {
      {Entity::kExtrudedAreaSolid, &ItemReader::ReadExtrusion},
      {Entity::kExtrudedAreaSolidTapered, &ItemReader::ReadExtrusion},
      {Entity::kRevolvedAreaSolid, &ItemReader::ReadRevolution},
      {Entity::kSweptDiskSolid, &ItemReader::ReadSweptDisk},
      {Entity::kSurfaceCurveSweptAreaSolid, &ItemReader::ReadSweptCurve},
      {Entity::kFacetedBrep, &ItemReader::ReadBrep},
      {Entity::kFacetedBrepWithVoids, &ItemReader::ReadBrep},
      {Entity::kFaceBasedSurfaceModel, &ItemReader::ReadSurfaceModel},
      {Entity::kShellBasedSurfaceModel, &ItemReader::ReadSurfaceModel},
      {Entity::kConnectedFaceSet, &ItemReader::ReadSurfaceModel},
      {Entity::kOpenShell, &ItemReader::ReadSurfaceModel},
      {Entity::kClosedShell, &ItemReader::ReadSurfaceModel},
      {Entity::kBooleanResult, &ItemReader::ReadBoolean},
      {Entity::kBooleanClippingResult, &ItemReader::ReadBoolean},
      {Entity::kHalfSpaceSolid, &ItemReader::ReadHalfSpace},
      {Entity::kPolygonalBoundedHalfSpace, &ItemReader::ReadHalfSpace},
      {Entity::kBoxedHalfSpace, &ItemReader::ReadHalfSpace},
      {Entity::kBlock, &ItemReader::ReadPrimitive},
      {Entity::kRectangularPyramid, &ItemReader::ReadPrimitive},
      {Entity::kRightCircularCylinder, &ItemReader::ReadPrimitive},
      {Entity::kRightCircularCone, &ItemReader::ReadPrimitive},
      {Entity::kSphere, &ItemReader::ReadPrimitive},
      {Entity::kMappedItem, &ItemReader::ReadMapped},
  };
  Solid solid;
  solid.id = item.Number();
  Unreadable why{LossReason::kUnsupportedItem, item.Number()};
  solid.form = why;
  for (const Row& row : kRows) {
    if (row.entity != item.GetEntity()) continue;
    (this->*row.read)(item, solid, why);
    if (std::holds_alternative<Unreadable>(solid.form)) solid.form = why;
  }
  return solid;
}

// Each operation below sets the form of the solid, or `why`.

void ItemReader::ReadBoolean(const Instance& item, Solid& solid, Unreadable& why) {
  const std::string name = item.Get(Attribute::kOperator).Enumerator();
  BooleanResult result;
  if (name == "UNION") {
    result.operation = BooleanOperation::kUnion;
  } else if (name == "INTERSECTION") {
    result.operation = BooleanOperation::kIntersection;
  } else if (name != "DIFFERENCE") {
    return;
  }
  const Instance first = Follow(item, Attribute::kFirstOperand, why);
  if (!first) return;
  const Instance second = Follow(item, Attribute::kSecondOperand, why);
  if (!second) return;
  result.first = SolidOf(item, first);
  result.second = SolidOf(item, second);
  solid.form = std::move(result);
}

void ItemReader::ReadMapped(const Instance& item, Solid& solid, Unreadable& why) {
  const Instance map = Follow(item, Attribute::kMappingSource, why);
  if (!map) return;
  const Instance representation = Follow(map, Attribute::kMappedRepresentation, why);
  if (!representation) return;
  const std::optional<Transform3> origin = ReadAxes(context, map, Attribute::kMappingOrigin, why);
  if (!origin) return;
  Transform3 target;
  if (item.Get(Attribute::kMappingTarget).IsSet()) {
    const Instance transformation = Follow(item, Attribute::kMappingTarget, why);
    if (!transformation) return;
    const std::optional<Transform3> read = ReadOperator(context, transformation, why);
    if (!read) return;
    target = *read;
  }
  const auto found = nodes.find(representation.Number());
  if (found == nodes.end() || !found->second.isComplete) {
    why = {LossReason::kCycle, item.Number()};
    return;
  }
  Node& node = found->second;
  if (node.group.empty()) {
    why = {LossReason::kNoItems, representation.Number()};
    return;
  }
  MappedItems mapped{Combine(target, InverseOfAxes(*origin)), {}};
  if (node.group.size() > kMostCopiedItems) {
    mapped.items = {Share(node, representation.Number())};
  } else {
    mapped.items = node.group;
  }
  solid.form = std::move(mapped);
}

}  // namespace KelIFC::building
