#include "kelifc/import/linear/read_linear.h"

#include <array>
#include <cstddef>
#include <utility>

#include "kelifc/core/references/cast_cache.h"
#include "kelifc/import/model/all_releases.h"
#include "kelifc/import/model/read_items.h"
#include "kelifc/import/shape/read_extrusion.h"
#include "kelifc/import/shape/read_shell.h"
#include "kelifc/import/shape/read_values.h"

namespace KelIFC {

namespace {

// The kinds of items by which a representation is chosen, the most preferred kind first.
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

/// Returns kPreferences for an item of any other kind.
template <class Release>
Preference PreferenceOf(const IfcRepresentationItem* item) {
  if (Is<typename Release::IfcExtrudedAreaSolid>(item)) return kExtrusion;
  if (Is<typename Release::IfcFacetedBrep>(item)) return kFacetedBrep;
  if (Is<typename Release::IfcMappedItem>(item)) return kMapped;
  if (Is<typename Release::IfcBooleanClippingResult>(item)) return kClipping;
  if (Is<typename Release::IfcShellBasedSurfaceModel>(item)) return kSurfaceModel;
  return kPreferences;
}

/// Returns the representation to convert, null if there is none. Its identifier plays no role.
template <class Release>
const typename Release::IfcRepresentation* ChooseRepresentation(
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
LinearFacts LinearReader<Release>::Read(const IfcProduct& product) {
  LinearFacts facts;
  bool isMapped = false;
  const auto* chosen = ChooseRepresentation<Release>(product, isMapped);
  if (chosen == nullptr) return facts;
  if (isMapped) facts.parts = ReadMapped(*chosen);
  if (facts.parts.empty()) {
    LinearPartFacts& own = facts.parts.emplace_back();
    own.representation = std::make_shared<RepresentationFacts>(ReadRepresentation(*chosen));
  }
  facts.identity = ReadIdentity(product, server);
  facts.chain = placements.Read(product.GetObjectPlacement());
  return facts;
}

/// The target of a mapped item is ignored.
template <class Release>
std::vector<LinearPartFacts> LinearReader<Release>::ReadMapped(const IfcRepresentation& chosen) {
  std::vector<LinearPartFacts> parts;
  const auto items = chosen.GetItems();
  for (std::size_t i = 1; i <= items.GetSize(); ++i) {
    const auto* item = CachedCast<typename Release::IfcMappedItem>(items[i]);
    const auto* source = item == nullptr ? nullptr : item->GetMappingSource();
    if (source == nullptr) continue;
    LinearPartFacts& part = parts.emplace_back();
    part.representation = SharedRepresentation(source->GetMappedRepresentation());
    part.isShared = true;
    part.mappingIndex = items.GetSize() == 1 ? 0 : i;
    part.outer = FrameOf(
        CachedCast<typename Release::IfcAxis2Placement3D>(source->GetMappingOrigin()), scale);
  }
  return parts;
}

template <class Release>
typename LinearReader<Release>::Shared LinearReader<Release>::SharedRepresentation(
    const IfcRepresentation* representation) {
  Shared& shared = mapped[representation];
  if (shared == nullptr) {
    shared = std::make_shared<RepresentationFacts>(
        representation == nullptr ? RepresentationFacts() : ReadRepresentation(*representation));
  }
  return shared;
}

template <class Release>
RepresentationFacts LinearReader<Release>::ReadRepresentation(
    const IfcRepresentation& representation) {
  RepresentationFacts facts;
  const auto items = representation.GetItems();
  facts.itemCount = items.GetSize();
  for (std::size_t i = 1; i <= items.GetSize(); ++i) {
    LinearItemFacts item;
    item.number = i;
    if (ReadItem(items[i], item)) facts.items.push_back(std::move(item));
  }
  return facts;
}

/// Returns false for an item that cannot be converted.
template <class Release>
bool LinearReader<Release>::ReadItem(const IfcRepresentationItem* item, LinearItemFacts& facts) {
  if (const auto* brep = CachedCast<typename Release::IfcFacetedBrep>(item)) {
    const auto* outer = brep->GetOuter();
    facts.hasShell = outer != nullptr;
    if (facts.hasShell && boundaries == Boundaries::kRead) {
      facts.boundary = std::make_shared<const BRep>(CaptureShell<Release>(*outer, scale));
    }
    return true;
  }
  const auto* solid = CachedCast<Extrusion>(item);
  if (solid == nullptr) solid = Unclipped(CachedCast<Clipping>(item));
  if (solid == nullptr) return false;
  facts.isExtrusion = true;
  facts.extrusion = ReadExtrusion<Release>(*solid, scale);
  return true;
}

/// Returns the extrusion that a clipping cuts, through any number of nested clippings. Returns null
/// if the innermost operand is not an extrusion, or if the clippings form a cycle.
template <class Release>
const typename Release::IfcExtrudedAreaSolid* LinearReader<Release>::Unclipped(
    const Clipping* clipping) {
  std::vector<const Clipping*> path;
  const Extrusion* solid = nullptr;
  for (const Clipping* at = clipping; at != nullptr;) {
    const auto [known, isNew] = unclipped.try_emplace(at, nullptr);
    solid = known->second;
    if (!isNew) break;  // read before, or still null because of a cycle
    path.push_back(at);
    const IfcBooleanOperand* operand = at->GetFirstOperand();
    solid = dynamic_cast<const Extrusion*>(operand);
    at = dynamic_cast<const Clipping*>(operand);
  }
  for (const Clipping* passed : path) unclipped[passed] = solid;
  return solid;
}

template class LinearReader<Release2x>;
template class LinearReader<Release2x2>;
template class LinearReader<Release2x3>;

}  // namespace KelIFC
