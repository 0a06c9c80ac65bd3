#include "kelifc/import/read_member.h"

#include <array>
#include <cstddef>
#include <utility>

#include "kelifc/core/cast_cache.h"
#include "kelifc/import/families.h"
#include "kelifc/import/read_extrusion.h"
#include "kelifc/import/read_items.h"
#include "kelifc/import/read_shell.h"
#include "kelifc/import/read_values.h"

namespace KelIFC {

namespace {

// The kinds of items that make a representation one to choose, in their order of preference.
enum Preference : std::size_t {
  kExtrusion,
  kFacetedBrep,
  kMapped,
  kClipping,
  kSurfaceModel,
  kPreferences
};

template <class Class>
bool Is(const IfcRepresentationItem* item) {
  return CachedCast<Class>(item) != nullptr;
}

/// kPreferences for any other item.
template <class Release>
Preference PreferenceOf(const IfcRepresentationItem* item) {
  if (Is<typename Release::IfcExtrudedAreaSolid>(item)) return kExtrusion;
  if (Is<typename Release::IfcFacetedBrep>(item)) return kFacetedBrep;
  if (Is<typename Release::IfcMappedItem>(item)) return kMapped;
  if (Is<typename Release::IfcBooleanClippingResult>(item)) return kClipping;
  if (Is<typename Release::IfcShellBasedSurfaceModel>(item)) return kSurfaceModel;
  return kPreferences;
}

/// The representation to convert, null if there is none; what it holds does not depend on how it is
/// called.
template <class Release>
const typename Release::IfcRepresentation* ChooseMemberRepresentation(
    const typename Release::IfcProduct& product, bool& isMapped) {
  isMapped = false;
  std::array<const typename Release::IfcRepresentation*, kPreferences + 1> first = {};
  ForEachItem<Release>(product, [&](const auto& representation, const IfcRepresentationItem& item) {
    auto& seen = first[PreferenceOf<Release>(&item)];
    if (seen == nullptr) seen = &representation;
    return first[kExtrusion] == nullptr;
  });
  for (std::size_t i = 0; i < kPreferences; ++i) {
    if (first[i] == nullptr) continue;
    isMapped = i == kMapped;
    return first[i];
  }
  return nullptr;
}

}  // namespace

template <class Release>
MemberFacts MemberReader<Release>::Read(const IfcProduct& product) {
  MemberFacts facts;
  bool isMapped = false;
  const auto* chosen = ChooseMemberRepresentation<Release>(product, isMapped);
  if (chosen == nullptr) return facts;
  if (isMapped) facts.parts = ReadMapped(*chosen);
  if (facts.parts.empty()) {
    MemberPartFacts& own = facts.parts.emplace_back();
    own.representation = std::make_shared<RepresentationFacts>(ReadRepresentation(*chosen));
  }
  facts.identity = ReadIdentity(product, server);
  facts.chain = placements.Read(product.GetObjectPlacement());
  return facts;
}

/// The target of a map is not looked at.
template <class Release>
std::vector<MemberPartFacts> MemberReader<Release>::ReadMapped(const IfcRepresentation& chosen) {
  std::vector<MemberPartFacts> parts;
  const auto items = chosen.GetItems();
  for (std::size_t i = 1; i <= items.GetSize(); ++i) {
    const auto* item = CachedCast<typename Release::IfcMappedItem>(items[i]);
    const auto* source = item == nullptr ? nullptr : item->GetMappingSource();
    if (source == nullptr) continue;
    MemberPartFacts& part = parts.emplace_back();
    part.representation = SharedRepresentation(source->GetMappedRepresentation());
    part.isShared = true;
    part.mappingIndex = items.GetSize() == 1 ? 0 : i;
    part.outer = FrameOf(
        CachedCast<typename Release::IfcAxis2Placement3D>(source->GetMappingOrigin()), scale);
  }
  return parts;
}

template <class Release>
typename MemberReader<Release>::Shared MemberReader<Release>::SharedRepresentation(
    const IfcRepresentation* representation) {
  Shared& shared = mapped[representation];
  if (shared == nullptr) {
    shared = std::make_shared<RepresentationFacts>(
        representation == nullptr ? RepresentationFacts() : ReadRepresentation(*representation));
  }
  return shared;
}

template <class Release>
RepresentationFacts MemberReader<Release>::ReadRepresentation(
    const IfcRepresentation& representation) {
  RepresentationFacts facts;
  const auto items = representation.GetItems();
  facts.itemCount = items.GetSize();
  for (std::size_t i = 1; i <= items.GetSize(); ++i) {
    MemberItemFacts item;
    item.number = i;
    if (ReadItem(items[i], item)) facts.items.push_back(std::move(item));
  }
  return facts;
}

/// Gives false for an item that no column or beam is made of.
template <class Release>
bool MemberReader<Release>::ReadItem(const IfcRepresentationItem* item, MemberItemFacts& facts) {
  if (const auto* brep = CachedCast<typename Release::IfcFacetedBrep>(item)) {
    const auto* outer = brep->GetOuter();
    facts.hasShell = outer != nullptr;
    if (outer != nullptr) CaptureShell<Release>(*outer, facts.boundary, scale);
    return true;
  }
  const auto* solid = CachedCast<Extrusion>(item);
  if (solid == nullptr) solid = Unclipped(CachedCast<Clipping>(item));
  if (solid == nullptr) return false;
  facts.isExtrusion = true;
  facts.extrusion = ReadExtrusion<Release>(*solid, scale);
  return true;
}

/// The extrusion that is clipped, through any number of clippings; null if what is clipped is
/// something else, or is clipped of itself.
template <class Release>
const typename Release::IfcExtrudedAreaSolid* MemberReader<Release>::Unclipped(
    const Clipping* clipping) {
  std::vector<const Clipping*> path;
  const Extrusion* solid = nullptr;
  for (const Clipping* at = clipping; at != nullptr;) {
    const auto [known, isNew] = unclipped.try_emplace(at, nullptr);
    solid = known->second;
    if (!isNew) break;  // one of the path itself is still null
    path.push_back(at);
    const IfcBooleanOperand* operand = at->GetFirstOperand();
    solid = dynamic_cast<const Extrusion*>(operand);
    at = dynamic_cast<const Clipping*>(operand);
  }
  for (const Clipping* passed : path) unclipped[passed] = solid;
  return solid;
}

template class MemberReader<Release2x>;
template class MemberReader<Release2x2>;
template class MemberReader<Release2x3>;

}  // namespace KelIFC
