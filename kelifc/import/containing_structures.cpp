#include <cstddef>

#include "kelifc/core/references/cast_cache.h"
#include "kelifc/geo/fill.h"
#include "kelifc/import/model/all_releases.h"

namespace KelIFC {

namespace {

/// Appends the identifiers of the structures that contain the instance. Returns false if the
/// instance is not an IfcElement of the release.
template <class Release>
bool AddContainers(const IfcUnknown& instance, std::vector<_GUID>& containers) {
  const auto* element = CachedCast<typename Release::IfcElement>(&instance);
  if (element == nullptr) return false;
  const auto relations = element->GetContainedInStructure();
  for (std::size_t i = 1; i <= relations.GetSize(); ++i) {
    const auto* structure =
        relations[i] == nullptr ? nullptr : relations[i]->GetRelatingStructure();
    if (structure != nullptr) containers.push_back(structure->GetGlobalGUID());
  }
  return true;
}

}  // namespace

std::vector<_GUID> ContainingStructures(const IfcUnknown& instance) {
  std::vector<_GUID> containers;
  static_cast<void>(AddContainers<Release2x>(instance, containers) ||
                    AddContainers<Release2x2>(instance, containers) ||
                    AddContainers<Release2x3>(instance, containers));
  return containers;
}

}  // namespace KelIFC
