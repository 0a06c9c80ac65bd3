#include "python/source/inverse.h"

#include <algorithm>
#include <cstddef>
#include <tuple>

namespace KelIFC::python {
namespace {

/// Returns true if a reference is in the attribute, and in an instance of the entity, that an
/// inverse attribute names.
bool IsPartOf(const Model::Reference& reference, IfcServer& server, const InverseAttribute& inverse,
              const EntityDescription& entity) {
  const IfcUnknown* const item = server.GetItem(reference.number);
  const EntityDescription* const found = item == nullptr ? nullptr : DescribeInstance(*item);
  if (found == nullptr || !found->IsKindOf(entity)) return false;
  const AttributeDescription* const attribute = found->AttributeAt(reference.position);
  return attribute != nullptr && attribute->name == inverse.attribute;
}

void SortByFile(std::vector<std::size_t>& numbers, const IfcServer& server) {
  const auto placeOf = [&server](std::size_t number) {
    const StatementPlace place = server.GetStatementPlace(number);
    const bool isNew = place.line == 0;
    return std::tuple(isNew, place.offset, number);
  };
  std::sort(numbers.begin(), numbers.end(),
            [&](std::size_t a, std::size_t b) { return placeOf(a) < placeOf(b); });
}

void AddInverseNames(const EntityDescription& entity, std::vector<std::string>& names) {
  for (const EntityDescription* base : entity.bases) {
    if (base != nullptr) AddInverseNames(*base, names);
  }
  for (std::size_t i = 0; i < entity.inverseCount; ++i) {
    names.emplace_back(entity.inverses[i].name);
  }
}

}  // namespace

py::tuple InverseOf(const Instance& instance, const InverseAttribute& inverse) {
  Model& model = *instance.GetModel();
  IfcServer& server = model.Server();
  std::vector<std::size_t> numbers;
  if (const auto* const entity = FindEntity(server.GetRelease(), inverse.entity)) {
    for (const Model::Reference& reference : model.ReferencesTo(instance.GetNumber())) {
      if (IsPartOf(reference, server, inverse, *entity)) numbers.push_back(reference.number);
    }
  }
  SortByFile(numbers, server);
  py::tuple found(numbers.size());
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    found[i] = py::cast(Instance(instance.GetModel(), numbers[i]));
  }
  return found;
}

std::vector<std::string> InverseNamesOf(const EntityDescription& entity) {
  std::vector<std::string> names;
  AddInverseNames(entity, names);
  return names;
}

}  // namespace KelIFC::python
