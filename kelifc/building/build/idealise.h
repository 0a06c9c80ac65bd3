#ifndef KELIFC_BUILDING_BUILD_IDEALISE_H_
#define KELIFC_BUILDING_BUILD_IDEALISE_H_

#include <optional>
#include <string>

#include "kelifc/building/build/made_profiles.h"
#include "kelifc/building/building.h"
#include "kelifc/building/facts/product_facts.h"
#include "kelifc/building/profile/make_profile.h"
#include "kelifc/building/solid/body.h"

namespace KelIFC::building {

namespace idealising {
class ReadingCache;
}

/// What the element is used as. It decides only where the proportions do not.
enum class ElementRole { kMember, kWall, kSlab, kPlate, kFooting, kOther };

/// What an idealisation may know of an element beside its body.
struct IdealisationInput {
  const EvaluatedBody* body = nullptr;    ///< in world coordinates
  const ProductFacts* product = nullptr;  ///< its items, placement, axis and layers; may be null
  ElementRole role = ElementRole::kOther;

  /// Shared by the elements of a model, so that equal work is done once; may be null.
  MadeProfiles* profiles = nullptr;
  idealising::ReadingCache* readings = nullptr;
};

/// An idealised element. The profiles are not yet shared with other elements: member->profile and
/// endProfile are set by the caller. The material of each layer is its place in the layers of the
/// product; the caller replaces it. The layers of a surface follow each other along its normal.
struct Idealisation {
  ElementKind kind = ElementKind::kBody;
  BodySource source = BodySource::kBrep;
  std::optional<MemberAxis> member;
  std::optional<BuildingProfile> profile;
  std::optional<BuildingProfile> endProfile;
  std::optional<SurfaceRegion> surface;
  BuildingBox box;
  double volume = 0.0;
  double deviation = 0.0;
  std::optional<double> volumeRatio;
  bool isApproximate = false;
  std::size_t cutouts = 0;
};

Idealisation Idealise(const IdealisationInput& input);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_BUILD_IDEALISE_H_
