#include "kelifc/import/shape/read_extrusion.h"

#include "kelifc/core/references/cast_cache.h"
#include "kelifc/import/model/all_releases.h"
#include "kelifc/import/shape/flatten_curve.h"
#include "kelifc/import/shape/read_values.h"

namespace KelIFC {

namespace {

template <class Profile>
void ReadPosition(const Profile& profile, double scale, ProfileFacts& facts) {
  const auto* position = profile.GetPosition();
  if (position == nullptr) return;
  facts.hasPosition = true;
  ReadPoint2(position->GetLocation(), scale, facts.location);
  ReadDirection2(position->GetRefDirection(), facts.refDirection);
}

template <class Release>
void ReadOutline(const typename Release::IfcCurve* curve, double scale, bool withCorners,
                 ProfileFacts& facts) {
  facts.kind = ProfileKind::kOutline;
  FlattenCurve<Release>(facts.outline, curve, kFlattenTolerance, scale, true);
  const auto* polyLine = CachedCast<typename Release::IfcPolyLine>(curve);
  if (polyLine == nullptr) return;
  facts.isPolyLine = true;
  if (withCorners) facts.corners = PolyLinePoints<Release>(*polyLine, scale);
}

template <class Release>
ProfileFacts ReadProfile(const typename Release::IfcProfileDef* profile, double scale,
                         bool withCorners) {
  ProfileFacts facts;
  if (const auto* circle = CachedCast<typename Release::IfcCircleProfileDef>(profile)) {
    facts.kind = ProfileKind::kCircle;
    facts.radius = scale * circle->GetRadius();
    ReadPosition(*circle, scale, facts);
  } else if (const auto* rectangle =
                 CachedCast<typename Release::IfcRectangleProfileDef>(profile)) {
    facts.kind = ProfileKind::kRectangle;
    facts.xDim = scale * rectangle->GetXDim();
    facts.yDim = scale * rectangle->GetYDim();
    ReadPosition(*rectangle, scale, facts);
  } else if (const auto* outline =
                 CachedCast<typename Release::IfcArbitraryClosedProfileDef>(profile)) {
    ReadOutline<Release>(outline->GetOuterCurve(), scale, withCorners, facts);
  }
  return facts;
}

}  // namespace

template <class Release>
ExtrusionFacts ReadExtrusion(const typename Release::IfcExtrudedAreaSolid& solid, double scale,
                             bool withCorners) {
  ExtrusionFacts facts;
  facts.profile = ReadProfile<Release>(solid.GetSweptArea(), scale, withCorners);
  ReadPlacement(solid.GetPosition(), scale, facts.position);
  ReadDirection3(solid.GetExtrudedDirection(), facts.direction);
  facts.depth = solid.GetDepth();
  facts.scale = scale;
  return facts;
}

template ExtrusionFacts ReadExtrusion<Release2x>(const Release2x::IfcExtrudedAreaSolid&, double,
                                                 bool);
template ExtrusionFacts ReadExtrusion<Release2x2>(const Release2x2::IfcExtrudedAreaSolid&, double,
                                                  bool);
template ExtrusionFacts ReadExtrusion<Release2x3>(const Release2x3::IfcExtrudedAreaSolid&, double,
                                                  bool);

}  // namespace KelIFC
