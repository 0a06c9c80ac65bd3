#include "python/source/instance.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <utility>

#include "python/source/errors.h"

namespace KelIFC::python {

Instance::Instance(std::shared_ptr<Model> owner, std::size_t number)
    : model(std::move(owner)),
      number(number),
      epoch(model->GetEpoch()),
      generation(model->GetGeneration(number)),
      entity(nullptr) {
  entity = DescribeInstance(Get());
}

Instance::Instance(std::shared_ptr<Model> owner, std::size_t number, const IfcUnknown& item)
    : model(std::move(owner)),
      number(number),
      epoch(model->GetEpoch()),
      generation(model->GetGeneration(number)),
      entity(DescribeInstance(item)) {}

std::string Instance::EntityName() const {
  if (entity != nullptr) return std::string(entity->name);
  return model->TextOf(InstanceView(Get()).EntityName());
}

bool Instance::IsA(const std::string& name) const {
  Get();
  const EntityDescription* const other = FindEntity(model->Server().GetRelease(), name);
  if (entity != nullptr && other != nullptr) return entity->IsKindOf(*other);
  if (IsSameName(EntityName(), name)) return true;
  RequireKnownName(name);
  return false;
}

void Instance::RaiseRemoved() const {
  Raise(PyExc_ReferenceError,
        "the instance #" + std::to_string(number) + " is no longer in its model");
}

bool IsSameName(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](unsigned char x, unsigned char y) {
    return std::toupper(x) == std::toupper(y);
  });
}

void RequireKnownName(const std::string& name) {
  constexpr std::array kReleases = {IFC_RELEASE_151, IFC_RELEASE_20, IFC_RELEASE_2X,
                                    IFC_RELEASE_2X2, IFC_RELEASE_2X3};
  const bool isKnown = std::any_of(kReleases.begin(), kReleases.end(), [&](IFC_RELEASE release) {
    return FindEntity(release, name) != nullptr;
  });
  if (!isKnown) Raise(PyExc_ValueError, "no release has an entity '" + name + "'");
}

}  // namespace KelIFC::python
