#include "kelifc/building/build/element_maker.h"

#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "kelifc/building/build/element_key.h"
#include "kelifc/building/build/finite.h"
#include "kelifc/building/profile/make_profile.h"
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

}  // namespace

void ElementMaker::Announce(const ProductFacts& product) {
  bodies.Announce(product.items);
  for (const OpeningFacts& opening : product.openings) {
    if (!opening.items.empty()) bodies.Announce(opening.items);
  }
}

// A kept element may only be used where the limits of the model would not have changed it.
std::optional<Unreadable> ElementMaker::Make(const ProductFacts& product,
                                             BuildingElement& element) {
  const ElementRole role = RoleOf(product.className);
  std::string& key = madeElements.Buffer();
  const bool hasKey = bodies.HasRoom() && MakeElementKey(product, role, key);
  if (hasKey) KeyWriter(key).Add(bodies.IsMoved(product.items, product.placement));
  if (const Made* known = hasKey ? madeElements.Find(key) : nullptr) {
    bodies.Skip(product.items, product.placement, known->points);
    element = known->element;
    return std::nullopt;
  }
  Made made;
  std::optional<Unreadable> fault = MakeNew(product, role, made);
  if (fault) return fault;
  element = made.element;
  if (hasKey) madeElements.Keep(key, std::move(made));
  return std::nullopt;
}

std::optional<Unreadable> ElementMaker::MakeNew(const ProductFacts& product, ElementRole role,
                                                Made& made) {
  BodyResult result = bodies.Make(product.items, product.placement);
  if (result.fault) return result.fault;
  if (!IsFinite(result.body.mesh)) return Unreadable{LossReason::kNotFinite, product.id};
  if (result.body.mesh.IsEmpty()) return Unreadable{LossReason::kDegenerate, product.id};
  Idealisation ideal = Idealise({&result.body, &product, role, &madeProfiles, &madeReadings});
  if (!IsFinite(ideal)) return Unreadable{LossReason::kNotFinite, product.id};
  made.points = result.body.mesh.points.size();
  made.element.isApproximate = !result.body.isExact;
  AddIdealisation(std::move(ideal), made.element);
  AddBody(std::move(result.body), made.element);
  return std::nullopt;
}

void ElementMaker::AddIdealisation(Idealisation ideal, BuildingElement& element) {
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
std::size_t ElementMaker::ProfileIndex(BuildingProfile profile, bool isTapered) {
  std::string key = ProfileKey(profile);
  if (isTapered) {
    const BuildingProfile* const known = profiles.Find(key);
    if (known != nullptr && !HaveSamePoints(*known, profile)) AddPoints(profile, key);
  }
  return profiles.Add(std::move(key), std::move(profile));
}

void ElementMaker::AddBody(EvaluatedBody body, BuildingElement& element) const {
  element.mappedDepth = body.mappedDepth;
  element.body.box = body.box;
  element.body.volume = body.volume;
  element.body.isClosed = body.isClosed;
  const bool isKept =
      options.keptBodies == KeptBodies::kAll ||
      (options.keptBodies == KeptBodies::kOfBodies && element.kind == ElementKind::kBody);
  if (isKept) element.body.mesh = std::make_shared<const Mesh>(std::move(body.mesh));
}

}  // namespace KelIFC::building
