#include "kelifc/building/read/relations.h"

#include "kelifc/core/detail/prefetch.h"
#include "kelifc/core/mvector.h"

namespace KelIFC::building {
namespace {

// The numbers that a reference or a list of references names.
template <class Visit>
void VisitNumbers(const Value& value, Visit visit) {
  if (value.TargetNumber() != 0) visit(value.TargetNumber());
  for (std::size_t i = 0; i < value.Size(); ++i) {
    if (const std::size_t number = value[i].TargetNumber(); number != 0) visit(number);
  }
}

}  // namespace

Relations::Relations(const Model& owner) {
  constexpr std::size_t kAhead = 12;  // instances are all over the memory
  const auto& items = owner.Server().GetItems();
  const auto& roots = owner.Server().GetRootPositions();
  const auto numbers = owner.Server().GetNumbersByPosition();
  for (std::size_t i = 0; i < roots.size(); ++i) {
    if (i + kAhead < roots.size()) detail::Prefetch(items[roots[i + kAhead]]);
    const IfcUnknown* const item = items[roots[i]];
    const auto number = static_cast<std::size_t>(numbers[roots[i]]);
    // Without a number, it was deleted, or another instance has taken the number.
    if (item != nullptr && number != 0) Take(Instance(owner, item, number));
  }
}

void Relations::Take(const Instance& instance) {
  if (instance.Is(kIsRelationship)) {
    TakeRelationship(instance);
    return;
  }
  const bool isStorey = instance.GetEntity() == Entity::kBuildingStorey;
  const bool isProject = instance.GetEntity() == Entity::kProject;
  if (!isStorey && !isProject && !instance.Is(kIsElement)) return;
  if (isProject) {
    if (!project) project = instance;
    return;
  }
  if (isListed.try_emplace(instance.Number(), true).second)
    (isStorey ? storeys : elements).push_back(instance);
}

void Relations::TakeRelationship(const Instance& instance) {
  const std::size_t relating = instance.Get(Attribute::kRelating).TargetNumber();
  if (relating == 0) return;
  const Value related = instance.Get(Attribute::kRelated);
  switch (instance.GetEntity()) {
    case Entity::kRelAggregates:
      VisitNumbers(related, [&](std::size_t part) {
        wholes.try_emplace(part, Whole{relating, instance.Number()});
      });
      break;
    case Entity::kRelContainedInSpatialStructure:
      VisitNumbers(related, [&](std::size_t part) { containers.try_emplace(part, relating); });
      break;
    case Entity::kRelAssociatesMaterial:
      VisitNumbers(related, [&](std::size_t object) { materials.try_emplace(object, relating); });
      break;
    case Entity::kRelDefinesByType:
      VisitNumbers(related, [&](std::size_t object) { types.try_emplace(object, relating); });
      break;
    case Entity::kRelVoidsElement:
      VisitNumbers(related, [&](std::size_t opening) { openings[relating].push_back(opening); });
      break;
    case Entity::kRelFillsElement:
      VisitNumbers(related, [&](std::size_t filling) { fills.try_emplace(relating, filling); });
      break;
    default:
      break;
  }
}

const std::vector<std::size_t>& Relations::OpeningsOf(std::size_t element) const {
  static const std::vector<std::size_t> kNone;
  const auto found = openings.find(element);
  return found == openings.end() ? kNone : found->second;
}

}  // namespace KelIFC::building
