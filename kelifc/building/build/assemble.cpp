#include "kelifc/building/build/assemble.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "kelifc/building/build/body_maker.h"
#include "kelifc/building/build/finite.h"
#include "kelifc/building/build/first_use.h"
#include "kelifc/building/build/idealise.h"
#include "kelifc/building/build/openings.h"
#include "kelifc/building/build/reading_cache.h"
#include "kelifc/building/build/storeys.h"
#include "kelifc/building/facts/number_map.h"
#include "kelifc/building/profile/make_profile.h"
#include "kelifc/building/reading_progress.h"
#include "kelifc/building/solid/key_writer.h"

namespace KelIFC::building {
namespace {

ElementRole RoleOf(std::string_view className) {
  struct Entry {
    std::string_view className;
    ElementRole role;
  };
  constexpr std::array<Entry, 11> kRoles = {{{"IfcColumn", ElementRole::kMember},
                                             {"IfcBeam", ElementRole::kMember},
                                             {"IfcMember", ElementRole::kMember},
                                             {"IfcPile", ElementRole::kMember},
                                             {"IfcWall", ElementRole::kWall},
                                             {"IfcWallStandardCase", ElementRole::kWall},
                                             {"IfcSlab", ElementRole::kSlab},
                                             {"IfcRampFlight", ElementRole::kSlab},
                                             {"IfcPlate", ElementRole::kPlate},
                                             {"IfcFooting", ElementRole::kFooting},
                                             {"IfcStairFlight", ElementRole::kOther}}};
  const auto* const found =
      std::find_if(kRoles.begin(), kRoles.end(),
                   [className](const Entry& entry) { return entry.className == className; });
  return found == kRoles.end() ? ElementRole::kOther : found->role;
}

/// True for a whole that has no body and is replaced by its parts.
bool IsDecomposed(const ProductFacts& product) {
  const bool hasNoShape = !product.fault ||
                          product.fault->reason == LossReason::kNoRepresentation ||
                          product.fault->reason == LossReason::kNoItems;
  return product.hasProductParts && product.items.empty() && hasNoShape;
}

/// True if the points of two outlines are the same, within 0.01 mm.
bool AreSame(const Outline& a, const Outline& b) {
  constexpr double kSamePoint = 1e-5;
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](const Point2& p, const Point2& q) { return Distance(p, q) <= kSamePoint; });
}

bool HaveSamePoints(const BuildingProfile& a, const BuildingProfile& b) {
  return AreSame(a.outline, b.outline) &&
         std::equal(a.holes.begin(), a.holes.end(), b.holes.begin(), b.holes.end(), AreSame);
}

/// Adds the points of a profile to its key.
void AddPoints(const BuildingProfile& profile, std::string& key) {
  KeyWriter writer(key);
  writer.Add(profile.outline.size());
  for (const Point2& p : profile.outline) writer.Add(p);
  for (const Outline& hole : profile.holes) {
    writer.Add(hole.size());
    for (const Point2& p : hole) writer.Add(p);
  }
}

/// Turns the products of one model into a building.
class Assembler {
 public:
  Assembler(ModelFacts model, const ReadingOptions& options)
      : options(options),
        products(std::move(model.products)),
        bodies(options),
        building(std::move(model.head)) {}

  Building Run();

 private:
  void AnnounceBodies();
  void Add(ProductFacts& product);
  std::optional<Unreadable> AddElement(ProductFacts& product);
  void AddLoss(const ProductFacts& product, const Unreadable& fault);
  BuildingElement ElementOf(const ProductFacts& product);
  void AddIdealisation(BuildingElement& element, Idealisation ideal);
  void AddBody(BuildingElement& element, EvaluatedBody body) const;
  void AddMaterials(BuildingElement& element, const MaterialFacts& facts);
  BuildingIndex MaterialIndex(const LayerFacts& layer);
  std::size_t ProfileIndex(BuildingProfile profile, bool isTapered);
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
  BodyMaker bodies;
  Building building;
  MadeProfiles madeProfiles;
  idealising::ReadingCache madeReadings;
  FirstUse<BuildingProfile> profiles;
  FirstUse<BuildingMaterial> materials;
  NumberMap<Place> places;
};

Building Assembler::Run() {
  ArrangeStoreys(building.storeys);
  AnnounceBodies();
  ReadingProgress progress(options, products.size());
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
  building.profiles = profiles.Take();
  building.materials = materials.Take();
  Count();
  return std::move(building);
}

void Assembler::AnnounceBodies() {
  for (const ProductFacts& product : products) {
    if (product.fault || product.items.empty()) continue;
    bodies.Announce(product.items);
    for (const OpeningFacts& opening : product.openings) {
      if (!opening.items.empty()) bodies.Announce(opening.items);
    }
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

/// Returns why the product could not be read, if so.
std::optional<Unreadable> Assembler::AddElement(ProductFacts& product) try {
  BodyResult result = bodies.Make(product.items, product.placement);
  if (result.fault) return result.fault;
  if (!IsFinite(result.body.mesh)) return Unreadable{LossReason::kNotFinite, product.id};
  if (result.body.mesh.IsEmpty()) return Unreadable{LossReason::kDegenerate, product.id};
  Idealisation ideal =
      Idealise({&result.body, &product, RoleOf(product.className), &madeProfiles, &madeReadings});
  if (!IsFinite(ideal)) return Unreadable{LossReason::kNotFinite, product.id};

  BuildingElement element = ElementOf(product);
  element.isApproximate = !result.body.isExact;
  AddIdealisation(element, std::move(ideal));
  AddMaterials(element, product.material);
  AddBody(element, std::move(result.body));
  for (const OpeningFacts& opening : product.openings) {
    element.openings.push_back(MakeOpening(opening, element.surface, bodies));
  }
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

BuildingElement Assembler::ElementOf(const ProductFacts& product) {
  BuildingElement element;
  element.id = product.id;
  element.className = product.className;
  element.guid = product.guid;
  element.name = product.name;
  element.tag = product.tag;
  element.type = product.type;
  element.storey = product.storey;
  return element;
}

void Assembler::AddIdealisation(BuildingElement& element, Idealisation ideal) {
  element.kind = ideal.kind;
  element.source = ideal.source;
  element.deviation = ideal.deviation;
  element.volumeRatio = ideal.volumeRatio;
  element.isApproximate = element.isApproximate || ideal.isApproximate;
  element.cutouts = ideal.cutouts;
  element.box = ideal.box;
  element.volume = ideal.volume;
  element.member = std::move(ideal.member);
  element.surface = std::move(ideal.surface);
  if (!element.member) return;
  const bool isTapered = ideal.endProfile.has_value();
  element.member->profile =
      ProfileIndex(std::move(ideal.profile).value_or(BuildingProfile()), isTapered);
  element.member->endProfile.reset();
  if (isTapered) {
    element.member->endProfile = ProfileIndex(std::move(*ideal.endProfile), isTapered);
  }
}

// The points of the two profiles of a tapered member correspond to each other. A profile of the
// same shape whose outline starts elsewhere cannot replace either of them.
std::size_t Assembler::ProfileIndex(BuildingProfile profile, bool isTapered) {
  std::string key = ProfileKey(profile);
  if (isTapered) {
    const BuildingProfile* const known = profiles.Find(key);
    if (known != nullptr && !HaveSamePoints(*known, profile)) AddPoints(profile, key);
  }
  return profiles.Add(std::move(key), std::move(profile));
}

void Assembler::AddBody(BuildingElement& element, EvaluatedBody body) const {
  element.mappedDepth = body.mappedDepth;
  element.body.box = body.box;
  element.body.volume = body.volume;
  element.body.isClosed = body.isClosed;
  const bool isKept =
      options.keptBodies == KeptBodies::kAll ||
      (options.keptBodies == KeptBodies::kOfBodies && element.kind == ElementKind::kBody);
  if (isKept) element.body.mesh = std::make_shared<const Mesh>(std::move(body.mesh));
}

BuildingIndex Assembler::MaterialIndex(const LayerFacts& layer) {
  if (!layer.hasMaterial) return std::nullopt;
  return materials.Add(layer.material, {layer.material});
}

/// Adds the materials of an element to the building, layer by layer in the order of the file.
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
  if (element.surface) element.surface->layers = std::move(layers);
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
