#include "kelifc/server/registered_materials.h"

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

#include "kelifc/schema/ifc151.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {
namespace {

// The attribute is protected, so this class derives from the entity class. It has no objects.
struct Registry : KelIFC151::IfcProjectMaterialRegistry {
  static const LIST_OF_MEMBERS& Materials(const KelIFC151::IfcProjectMaterialRegistry& registry) {
    return registry.*(&Registry::registeredMaterials);
  }
};

// Returns the instance numbers of the registries, in the order of their statements.
std::vector<std::size_t> FindRegistries(IfcServer& model) {
  std::vector<std::pair<std::uint64_t, std::size_t>> found;
  for (std::size_t n = model.GetNextNumber(0); n != 0; n = model.GetNextNumber(n)) {
    const IfcUnknown* const item = model.IfcServer::GetItem(n);
    if (dynamic_cast<const KelIFC151::IfcProjectMaterialRegistry*>(item) == nullptr) continue;
    found.emplace_back(model.GetStatementPlace(n).offset, n);
  }
  std::sort(found.begin(), found.end());
  std::vector<std::size_t> numbers;
  numbers.reserve(found.size());
  for (const auto& [offset, number] : found) numbers.push_back(number);
  return numbers;
}

}  // namespace

void RegisteredMaterials::Collect(IfcServer& loaded) {
  model = &loaded;
  registries.clear();
  for (const std::size_t number : FindRegistries(loaded)) {
    const auto* const registry = dynamic_cast<const KelIFC151::IfcProjectMaterialRegistry*>(
        loaded.IfcServer::GetItem(number));
    const LIST_OF_MEMBERS& materials = Registry::Materials(*registry);
    const std::uint64_t offset = loaded.GetStatementPlace(number).offset;
    for (std::size_t i = 1; i <= materials.GetSize(); ++i) {
      const std::size_t material = materials.GetItem(i);
      if (loaded.GetStatementPlace(material).offset < offset) registries[material] = number;
    }
  }
}

bool RegisteredMaterials::Complete(std::size_t number, IfcUnknown& stated) const {
  const auto found = registries.find(number);
  auto* const material = dynamic_cast<KelIFC151::IfcMaterial*>(&stated);
  if (found == registries.end() || material == nullptr) return false;
  // As in the load: the attribute keeps what it holds beside the number. Only an instance of the
  // model finds the number of the registry.
  IfcServer* const server = stated.GetServer();
  stated.SetServer(model);
  material->SetRegisteredBy(dynamic_cast<KelIFC151::IfcProjectMaterialRegistry*>(
      model->IfcServer::GetItem(found->second)));
  stated.SetServer(server);
  return true;
}

}  // namespace KelIFC
