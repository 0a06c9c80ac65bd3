#include "kelifc/building/build/made_profiles.h"

#include <cmath>
#include <string>

#include "kelifc/building/solid/key_writer.h"

namespace KelIFC::building {

const std::optional<PlacedProfile>& MadeProfiles::Get(const ProfilePointer& facts, double scale) {
  const double factor = std::fabs(scale - 1.0) < 1e-9 ? 1.0 : scale;
  const auto [at, isNew] = entries.try_emplace({facts.get(), factor});
  if (isNew) at->second = {facts, MakeOnce(facts, factor)};
  return *at->second.profile;
}

MadeProfiles::Made MadeProfiles::MakeOnce(const ProfilePointer& facts, double factor) {
  std::string& key = equal.Buffer();
  KeyWriter writer(key);
  writer.Add(facts);
  writer.Add(factor);
  if (const Made* const known = equal.Find(key)) return *known;
  auto made =
      std::make_shared<const std::optional<PlacedProfile>>(MakeProfile(Scaled(*facts, factor)));
  if (writer.IsUsable()) equal.Keep(key, made);
  return made;
}

ProfileFacts Scaled(const ProfileFacts& facts, double factor) {
  if (std::fabs(factor - 1.0) < 1e-9) return facts;
  ProfileFacts scaled = facts;
  for (std::size_t i = 0; i < scaled.parameters.size(); ++i) {
    if (static_cast<ProfileParameter>(i) != ProfileParameter::kSlope) {
      scaled.parameters[i] *= factor;
    }
  }
  const auto scale = [&](Point2& p) { p = {p.x * factor, p.y * factor}; };
  const auto scaleContour = [&](Contour& contour) {
    for (Point2& p : contour.points) scale(p);
    for (ContourArc& arc : contour.arcs) scale(arc.through);
  };
  scale(scaled.position.origin);
  for (Region& region : scaled.regions) {
    scaleContour(region.outer);
    for (Contour& hole : region.holes) scaleContour(hole);
  }
  return scaled;
}

}  // namespace KelIFC::building
