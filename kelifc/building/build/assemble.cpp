#include "kelifc/building/build/assemble.h"

#include <cmath>
#include <stdexcept>
#include <utility>

#include "kelifc/building/build/element_maker.h"
#include "kelifc/building/build/first_use.h"
#include "kelifc/building/build/openings.h"
#include "kelifc/building/build/storeys.h"
#include "kelifc/building/facts/number_map.h"
#include "kelifc/building/reading_progress.h"

namespace KelIFC::building {
namespace {

/// True for a whole that has no body and is replaced by its parts.
bool IsDecomposed(const ProductFacts& product) {
  const bool hasNoShape = !product.fault ||
                          product.fault->reason == LossReason::kNoRepresentation ||
                          product.fault->reason == LossReason::kNoItems;
  return product.hasProductParts && product.items.empty() && hasNoShape;
}

/// Turns the products of one model into a building.
class Assembler {
 public:
  Assembler(ModelFacts model, const ReadingOptions& options)
      : options(options),
        products(std::move(model.products)),
        maker(options),
        building(std::move(model.head)) {}

  Building Run();

 private:
  void AnnounceBodies();
  void Add(ProductFacts& product);
  std::optional<Unreadable> AddElement(ProductFacts& product);
  void AddLoss(const ProductFacts& product, const Unreadable& fault);
  void AddMaterials(BuildingElement& element, const MaterialFacts& facts);
  BuildingIndex MaterialIndex(const LayerFacts& layer);
  void LinkParts();
  std::size_t FindWhole(std::size_t id) const;
  void Count();

  /// What is known of a product by its number.
  struct Place {
    std::size_t whole = 0;
    bool isElement = false;
  };

  const ReadingOptions& options;
  std::vector<ProductFacts> products;
  ElementMaker maker;
  Building building;
  FirstUse<BuildingMaterial> materials;
  NumberMap<Place> places;
};

Building Assembler::Run() {
  ArrangeStoreys(building.storeys);
  AnnounceBodies();
  ReadingProgress progress(options, products.size());
  building.elements.reserve(products.size());
  for (std::size_t i = 0; i < products.size(); ++i) {
    progress.Reach(products.size() + i);
    Add(products[i]);
  }
  progress.Reach(2 * products.size());
  LinkParts();
  const StoreysByHeight storeys(building.storeys);
  for (BuildingElement& element : building.elements) {
    element.storeyByHeight = storeys.Find(element);
  }
  building.profiles = maker.TakeProfiles();
  building.materials = materials.Take();
  Count();
  return std::move(building);
}

void Assembler::AnnounceBodies() {
  for (const ProductFacts& product : products) {
    if (!product.fault && !product.items.empty()) maker.Announce(product);
  }
}

void Assembler::Add(ProductFacts& product) {
  Place& place = places[product.id];
  place.whole = product.whole;
  if (IsDecomposed(product)) {
    building.decomposed.push_back({product.id, product.className});
    return;
  }
  std::optional<Unreadable> fault = product.fault;
  if (!fault && product.items.empty())
    fault = Unreadable{LossReason::kNoRepresentation, product.id};
  if (!fault) fault = AddElement(product);
  if (fault) AddLoss(product, *fault);
  place.isElement = !fault;
  product.items.clear();
  product.openings.clear();
}

/// Returns why the product could not be read, if so. Otherwise the texts of the product are moved
/// to the element.
std::optional<Unreadable> Assembler::AddElement(ProductFacts& product) try {
  BuildingElement element;
  if (std::optional<Unreadable> fault = maker.Make(product, element)) return fault;
  AddMaterials(element, product.material);
  for (const OpeningFacts& opening : product.openings) {
    element.openings.push_back(MakeOpening(opening, element.surface, maker.Bodies()));
  }
  element.id = product.id;
  element.className = std::move(product.className);
  element.guid = std::move(product.guid);
  element.name = std::move(product.name);
  element.tag = std::move(product.tag);
  element.type = std::move(product.type);
  element.storey = product.storey;
  building.elements.push_back(std::move(element));
  return std::nullopt;
} catch (const std::length_error&) {  // a container was asked for more than it can ever hold
  return Unreadable{LossReason::kLimit, product.id};
}

void Assembler::AddLoss(const ProductFacts& product, const Unreadable& fault) {
  BuildingLoss loss;
  loss.id = product.id;
  loss.line = product.line;
  loss.className = product.className;
  loss.guid = product.guid;
  loss.name = product.name;
  loss.reason = fault.reason;
  loss.at = fault.at;
  building.losses.push_back(std::move(loss));
}

BuildingIndex Assembler::MaterialIndex(const LayerFacts& layer) {
  if (!layer.hasMaterial) return std::nullopt;
  return materials.Add(layer.material, {layer.material});
}

/// Adds the materials of an element to the building, layer by layer in the order of the file. The
/// layers of a surface keep their order.
void Assembler::AddMaterials(BuildingElement& element, const MaterialFacts& facts) {
  if (!facts.materials.empty()) {
    element.material = materials.Add(facts.materials.front(), {facts.materials.front()});
  }
  double thickest = 0.0;
  std::vector<MaterialLayer> layers;
  for (const LayerFacts& fact : facts.layers) {
    const double thickness = std::isfinite(fact.thickness) ? fact.thickness : 0.0;
    const MaterialLayer layer = {MaterialIndex(fact), thickness};
    layers.push_back(layer);
    if (!layer.material || !(layer.thickness > thickest)) continue;
    thickest = layer.thickness;
    element.material = layer.material;
  }
  if (!element.surface) return;
  for (MaterialLayer& layer : element.surface->layers) layer = layers[layer.material.value_or(0)];
}

/// The element that a product is a part of; 0 if there is none, or if the product is a part of
/// itself. Wholes that are decomposed or lost are skipped.
std::size_t Assembler::FindWhole(std::size_t id) const {
  std::size_t found = 0;
  std::size_t at = id;
  std::size_t mark = 0;  // an earlier product; if it comes again, the products are in a cycle
  for (std::size_t depth = 0; depth <= options.maxDepth; ++depth) {
    const auto place = places.find(at);
    at = place == places.end() ? 0 : place->second.whole;
    if (at == id) return 0;
    if (at == 0 || at == mark) return found;
    if ((depth & (depth + 1)) == 0) mark = at;  // after 1, 2, 4, ... steps
    const auto whole = places.find(at);
    if (found == 0 && whole != places.end() && whole->second.isElement) found = at;
  }
  return 0;
}

void Assembler::LinkParts() {
  for (BuildingElement& element : building.elements) element.partOf = FindWhole(element.id);
}

void Assembler::Count() {
  BuildingTotals& totals = building.totals;
  totals = {};
  totals.products = products.size();
  totals.decomposed = building.decomposed.size();
  totals.lost = building.losses.size();
  for (const BuildingElement& element : building.elements) {
    std::size_t& count = element.kind == ElementKind::kMember    ? totals.members
                         : element.kind == ElementKind::kSurface ? totals.surfaces
                                                                 : totals.bodies;
    ++count;
    if (element.isApproximate) ++totals.approximate;
  }
}

}  // namespace

Building Assemble(ModelFacts model, const ReadingOptions& options) {
  return Assembler(std::move(model), options).Run();
}

}  // namespace KelIFC::building
