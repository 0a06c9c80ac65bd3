#include "kelifc/schema/attribute_table.h"

#include <algorithm>

#include "kelifc/core/text/ascii.h"
#include "kelifc/schema/entity_tables.h"

namespace KelIFC {

namespace {

/// Returns the attribute with a name among those that the class itself adds, or null if there is
/// none.
const AttributeDescription* FindOwn(const EntityDescription& entity, std::string_view name) {
  const AttributeDescription* derived = nullptr;
  for (std::size_t i = 0; i < entity.attributeCount; ++i) {
    const AttributeDescription& attribute = entity.attributes[i];
    if (!ascii::IsSameText(attribute.name, name)) continue;
    if (attribute.use != AttributeUse::kDerived) return &attribute;
    if (derived == nullptr) derived = &attribute;
  }
  return derived;
}

}  // namespace

const AttributeDescription* EntityDescription::AttributeAt(std::size_t position) const {
  if (position >= positionCount) return nullptr;
  const EntityDescription* entity = this;
  while (entity->record != nullptr && position < entity->record->positionCount) {
    entity = entity->record;
  }
  const std::size_t first = entity->record == nullptr ? 0 : entity->record->positionCount;
  return &entity->attributes[position - first];
}

const AttributeDescription* EntityDescription::FindAttribute(std::string_view attributeName) const {
  if (attributeName.empty()) return nullptr;
  if (const auto* own = FindOwn(*this, attributeName)) return own;
  for (const EntityDescription* base : bases) {
    if (base == nullptr) continue;
    if (const auto* inherited = base->FindAttribute(attributeName)) return inherited;
  }
  return nullptr;
}

const InverseAttribute* EntityDescription::FindInverse(std::string_view inverseName) const {
  const InverseAttribute* const end = inverses + inverseCount;
  const InverseAttribute* const own = std::find_if(inverses, end, [&](const InverseAttribute& row) {
    return ascii::IsSameText(row.name, inverseName);
  });
  if (own != end) return own;
  for (const EntityDescription* base : bases) {
    if (base == nullptr) continue;
    if (const auto* inherited = base->FindInverse(inverseName)) return inherited;
  }
  return nullptr;
}

bool EntityDescription::IsKindOf(const EntityDescription& other) const {
  if (this == &other) return true;
  return std::any_of(std::begin(bases), std::end(bases), [&](const EntityDescription* base) {
    return base != nullptr && base->IsKindOf(other);
  });
}

EntityRange AllEntities(IFC_RELEASE release) {
  switch (release) {
    case IFC_RELEASE_151:
      return kTables151.entities;
    case IFC_RELEASE_20:
      return kTables20.entities;
    case IFC_RELEASE_2X:
      return kTables2x.entities;
    case IFC_RELEASE_2X2:
      return kTables2x2.entities;
    case IFC_RELEASE_2X3:
      return kTables2x3.entities;
    case IFC_RELEASE_NONE:
      break;
  }
  return {};
}

const EntityDescription* FindEntity(IFC_RELEASE release, std::string_view name) {
  const EntityRange all = AllEntities(release);
  const auto* const at = std::lower_bound(
      all.begin(), all.end(), name, [](const EntityDescription* entity, std::string_view text) {
        return ascii::IsBefore(entity->name, text);
      });
  return at != all.end() && ascii::IsSameText((*at)->name, name) ? *at : nullptr;
}

}  // namespace KelIFC
