#ifndef KELIFC_BUILDING_BUILD_IDEALISE_READING_H_
#define KELIFC_BUILDING_BUILD_IDEALISE_READING_H_

#include <optional>
#include <vector>

#include "kelifc/building/build/idealise.h"
#include "kelifc/building/build/idealise_boundary.h"
#include "kelifc/building/build/idealise_measure.h"

namespace KelIFC::building::idealising {

/// The element that is idealised. All readings are in the local coordinates of its boundary.
struct Subject {
  Boundary& boundary;
  const ProductFacts* product = nullptr;  ///< may be null
  ElementRole role = ElementRole::kOther;
  MadeProfiles* profiles = nullptr;  ///< may be null
};

/// The proportions of a body. A member is slender, a surface is flat; a body can be both.
struct Proportions {
  double slenderness = 0.0;  ///< the length by the larger size of the section
  double flatness = 0.0;     ///< the smaller size in the plane by the thickness
};

/// One way to see a body as a member or as a surface.
struct Reading {
  ElementKind kind = ElementKind::kBody;
  MemberAxis member;
  BuildingProfile profile;
  std::optional<BuildingProfile> endProfile;
  SurfaceRegion surface;

  double suitability = 0.0;  ///< of the proportions for the kind and the role, from 0 to 1
  double size = 0.0;         ///< the larger size of the section, or the thickness, in metres
  Mesh solid;
  Fit fit;
};

/// How suitable it is to read an element of a role as a member or as a surface, from 0 to 1. The
/// proportions decide; the role decides close cases.
double SuitabilityOfMember(ElementRole role, const Proportions& proportions);
double SuitabilityOfSurface(ElementRole role, const Proportions& proportions);

/// A small bonus for the usual normal of a surface of the role: horizontal and square to the axis
/// for a wall, upwards for a slab or a footing. It decides between equal proportions.
double PreferenceOf(const Subject& subject, const Vector3& normal);

/// From this suitability on, a reading that fits is taken without a look at others.
constexpr double kSuitable = 0.75;

/// Makes the solid of a reading and measures it. False if there is no solid.
bool Measure(Subject& subject, Reading& reading);

/// The suitability less what the fit lacks.
double ScoreOf(const Reading& reading);

/// True if the reading fits well enough to be of use.
bool IsAcceptable(const Reading& reading);

/// Keeps the better one of the reading in `best` and another one.
void KeepBetter(std::optional<Reading>& best, std::optional<Reading> other);

/// True if no other reading has to be looked at.
bool IsGood(const std::optional<Reading>& reading);

/// The proportions of a prism: a region of the plane, swept by a length.
Proportions ProportionsOfMember(const Outline& section, double length);
Proportions ProportionsOfSurface(const Outline& outline, const std::vector<Outline>& holes,
                                 double thickness);

}  // namespace KelIFC::building::idealising

#endif  // KELIFC_BUILDING_BUILD_IDEALISE_READING_H_
