#include "kelifc/building/read/products.h"

#include <utility>

#include "kelifc/building/read/curves.h"
#include "kelifc/building/read/materials.h"

namespace KelIFC::building {
namespace {

// A representation of more items than this is copied for the first of its products only.
constexpr std::size_t kMostCopiedItems = 64;

// An axis of more points is left out: each product has a copy of its axis, and curves can be
// shared.
constexpr std::size_t kMostAxisPoints = 256;

OpeningKind KindOf(const Instance& fill) {
  if (fill.GetEntity() == Entity::kDoor) return OpeningKind::kDoor;
  if (fill.GetEntity() == Entity::kWindow) return OpeningKind::kWindow;
  return OpeningKind::kVoid;
}

}  // namespace

ProductFacts ProductReader::Read(const Instance& product) {
  ProductFacts facts;
  ReadIdentity(product, facts);
  Unreadable why;
  facts.items = ReadBody(product, why);
  if (facts.items.empty()) {
    const std::size_t cycle = decomposition.CycleOf(facts.id);
    facts.fault = cycle == 0 ? why : Unreadable{LossReason::kCycle, cycle};
  } else if (decomposition.DepthOf(facts.id) > context.options.maxDepth) {
    facts.fault = Unreadable{LossReason::kLimit, facts.id};
  } else if (!ReadPlacement(product, facts.placement, why)) {
    facts.fault = why;
  }
  ReadMaterials(facts);
  if (facts.fault) return facts;
  ReadAxis(product, facts);
  ReadOpenings(facts);
  return facts;
}

void ProductReader::ReadIdentity(const Instance& product, ProductFacts& facts) {
  facts.id = product.Number();
  facts.line = context.model.Server().GetSourceLine(facts.id);
  facts.className = RowOf(product.GetEntity()).name;
  facts.guid = product.StatedGlobalId();
  facts.name = product.Get(Attribute::kName).Text();
  facts.tag = product.Get(Attribute::kTag).Text();
  facts.type = product.StatedEnumerator(Attribute::kPredefinedType);
  facts.storey = decomposition.StoreyOf(facts.id);
  facts.whole = decomposition.WholeOf(facts.id);
  facts.hasProductParts = decomposition.HasProductParts(facts.id);
}

// A product without a placement is in the coordinates of the world.
bool ProductReader::ReadPlacement(const Instance& product, Transform3& placement, Unreadable& why) {
  if (!product.Get(Attribute::kObjectPlacement).IsSet()) return true;
  const Instance at = Follow(product, Attribute::kObjectPlacement, why);
  if (!at) return false;
  const std::optional<Transform3> toWorld = placements.Read(at, why);
  if (toWorld) placement = *toWorld;
  return toWorld.has_value();
}

std::vector<SolidPointer> ProductReader::ReadBody(const Instance& product, Unreadable& why) {
  const Instance representation = chooser.ChooseBody(product, why);
  if (!representation) return {};
  why = {LossReason::kNoItems, representation.Number()};
  const std::vector<SolidPointer>& solids = items.ReadItems(representation);
  const bool isFirst = used.try_emplace(representation.Number(), true).second;
  if (!isFirst && solids.size() > kMostCopiedItems) return {items.ReadShared(representation)};
  return solids;
}

void ProductReader::ReadAxis(const Instance& product, ProductFacts& facts) {
  const Instance representation = RepresentationChooser::FindByName(product, "AXIS");
  const Instance curve = representation.Get(Attribute::kItems)[0].Target();
  if (!curve || withoutAxis.count(curve.Number()) != 0) return;
  Unreadable why;
  std::optional<Path> path = ReadCurve(context, curve, why);
  if (path && path->points.size() <= kMostAxisPoints) {
    facts.axis = ToSpaceCurve(std::move(*path));
  } else {
    withoutAxis.try_emplace(curve.Number(), true);
  }
}

void ProductReader::ReadMaterials(ProductFacts& facts) {
  std::size_t definition = relations.MaterialOf(facts.id);
  if (definition == 0) definition = relations.MaterialOf(relations.TypeOf(facts.id));
  if (definition == 0) return;
  const auto [found, isNew] = materials.try_emplace(definition);
  if (isNew) found->second = ReadMaterial(context, context.model.Find(definition));
  // Copies of a list that many products share count as points do.
  const std::size_t count = found->second.layers.size() + found->second.materials.size();
  if (context.Spend(count)) facts.material = found->second;
}

void ProductReader::ReadOpenings(ProductFacts& facts) {
  for (const std::size_t number : relations.OpeningsOf(facts.id)) {
    const Instance opening = context.model.Find(number);
    if (opening.GetEntity() != Entity::kOpeningElement) continue;
    OpeningFacts read;
    Unreadable why;
    if (!ReadPlacement(opening, read.placement, why)) continue;
    read.id = number;
    read.guid = opening.StatedGlobalId();
    read.items = ReadBody(opening, why);
    const Instance fill = context.model.Find(relations.FillOf(number));
    read.fill = fill.Number();
    read.kind = KindOf(fill);
    facts.openings.push_back(std::move(read));
  }
}

}  // namespace KelIFC::building
