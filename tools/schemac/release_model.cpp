#include "tools/schemac/release_model.h"

#include "tools/schemac/core_classes.h"

namespace schemac {

const ResolvedClass* ReleaseModel::Find(std::string_view name) const {
  const auto at = indexOf.find(name);
  return at == indexOf.end() ? nullptr : &classes[at->second];
}

bool ReleaseModel::KnowsClass(std::string_view name) const {
  return Find(name) != nullptr || FindCoreClass(name) != nullptr || definedTypes.count(name) != 0;
}

const Attribute* ReleaseModel::FindAttribute(const ResolvedClass& type,
                                             std::string_view name) const {
  for (const Attribute* attribute : type.attributes) {
    if (attribute->name == name) return attribute;
  }
  for (const auto& base : type.bases) {
    const ResolvedClass* other = Find(base);
    if (other == nullptr) continue;
    if (const Attribute* found = FindAttribute(*other, name)) return found;
  }
  return nullptr;
}

const EnumTable* ReleaseModel::FindTable(const Enumeration& enumeration) const {
  if (enumeration.isCore && !enumeration.tables.empty()) return &enumeration.tables.front();
  for (const auto& table : enumeration.tables) {
    if (table.releases.Has(release)) return &table;
  }
  return nullptr;
}

}  // namespace schemac
