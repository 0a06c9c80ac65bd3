#include "kelifc/building/read/profiles.h"

#include <cmath>
#include <memory>
#include <utility>

#include "kelifc/building/profile/make_profile.h"
#include "kelifc/building/profile/shape_region.h"
#include "kelifc/building/read/crane_rails.h"
#include "kelifc/building/read/curves.h"
#include "kelifc/building/read/offset.h"
#include "kelifc/building/read/placements.h"

namespace KelIFC::building {
namespace {

using A = Attribute;
using E = Entity;
using P = ProfileParameter;

struct ShapeRow {
  Entity entity;
  ProfileShape shape;
};

constexpr ShapeRow kShapes[] = {
    {E::kRectangleProfile, ProfileShape::kRectangle},
    {E::kRoundedRectangleProfile, ProfileShape::kRoundedRectangle},
    {E::kRectangleHollowProfile, ProfileShape::kHollowRectangle},
    {E::kTrapeziumProfile, ProfileShape::kTrapezium},
    {E::kCircleProfile, ProfileShape::kCircle},
    {E::kCircleHollowProfile, ProfileShape::kHollowCircle},
    {E::kEllipseProfile, ProfileShape::kEllipse},
    {E::kIShapeProfile, ProfileShape::kI},
    {E::kAsymmetricIShapeProfile, ProfileShape::kAsymmetricI},
    {E::kLShapeProfile, ProfileShape::kL},
    {E::kUShapeProfile, ProfileShape::kU},
    {E::kTShapeProfile, ProfileShape::kT},
    {E::kCShapeProfile, ProfileShape::kC},
    {E::kZShapeProfile, ProfileShape::kZ},
};

// Which size of the file is which parameter. A shape takes those that its entity has.
struct SizeRow {
  Attribute attribute;
  ProfileParameter parameter;
  double factor = 1.0;
};

constexpr SizeRow kSizes[] = {
    {A::kXDim, P::kB},
    {A::kYDim, P::kH},
    {A::kTopXDim, P::kB1},
    {A::kTopXOffset, P::kOffset},
    {A::kWallThickness, P::kT},
    {A::kInnerFilletRadius, P::kR1},
    {A::kOuterFilletRadius, P::kR},
    {A::kWebThickness, P::kTw},
    {A::kFlangeThickness, P::kTf},
    {A::kFilletRadius, P::kR},
    {A::kEdgeRadius, P::kR1},
    {A::kTopFlangeWidth, P::kB1},
    {A::kTopFlangeThickness, P::kTf1},
    {A::kTopFlangeFilletRadius, P::kR1},
    {A::kGirth, P::kC},
    {A::kRadius, P::kD, 2.0},
    {A::kSemiAxis1, P::kB, 2.0},
    {A::kSemiAxis2, P::kH, 2.0},
};

// What an unset size is, if it is not 0.
struct DefaultRow {
  Entity entity;
  ProfileParameter parameter;
  ProfileParameter source;
};

constexpr DefaultRow kDefaults[] = {
    {E::kLShapeProfile, P::kB, P::kH},
    {E::kAsymmetricIShapeProfile, P::kTf1, P::kTf},
};

double& At(ProfileFacts& facts, ProfileParameter parameter) {
  return facts.parameters[static_cast<std::size_t>(parameter)];
}

Transform2 PlaneMap(const Transform3& map) {
  return {{map.x.x, map.x.y}, {map.y.x, map.y.y}, {map.origin.x, map.origin.y}};
}

Vector2 Turn(const Transform2& map, const Vector2& v) {
  return {v.x * map.x.x + v.y * map.y.x, v.x * map.x.y + v.y * map.y.y};
}

// Applies a map to a profile whose shape has sizes, so that its position does not scale: the sizes
// do. False if the map scales differently along its axes.
bool MoveShape(ProfileFacts& facts, const Transform2& map) {
  const double scale = Length(map.x);
  if (!(scale > 0.0) || std::abs(Length(map.y) - scale) > 1e-9 * scale) return false;
  const Point2 origin = map(facts.position.origin);
  facts.position.x = Turn(map, facts.position.x) * (1.0 / scale);
  facts.position.y = Turn(map, facts.position.y) * (1.0 / scale);
  facts.position.origin = origin;
  for (std::size_t i = 0; i < kProfileParameterCount; ++i) {
    if (i != static_cast<std::size_t>(P::kSlope)) facts.parameters[i] *= scale;
  }
  return true;
}

void MoveRegions(ProfileFacts& facts, const Transform2& map) {
  const Transform2 inner = facts.position;
  facts.position = {Turn(map, inner.x), Turn(map, inner.y), map(inner.origin)};
}

}  // namespace

ProfilePointer ProfileReader::Read(const Instance& profile, Unreadable& why) {
  return ReadNested(profile, kMaxCurveDepth, why);
}

ProfilePointer ProfileReader::Read(const Instance& solid, Attribute attribute, Unreadable& why) {
  const Instance profile = Follow(solid, attribute, why);
  return profile ? Read(profile, why) : nullptr;
}

// A profile that is being read is in the list already, as a cycle.
ProfilePointer ProfileReader::ReadNested(const Instance& profile, std::size_t depth,
                                         Unreadable& why) {
  const std::size_t number = profile.Number();
  const auto [found, isNew] =
      entries.try_emplace(number, Entry{nullptr, {LossReason::kCycle, number}});
  if (isNew) {
    Entry made = Make(profile, depth);
    found->second = std::move(made);
  }
  why = found->second.why;
  return found->second.profile;
}

ProfileReader::Entry ProfileReader::Make(const Instance& profile, std::size_t depth) {
  Entry entry;
  entry.why = {LossReason::kLimit, profile.Number()};
  if (depth == 0) return entry;
  ProfileFacts facts;
  facts.id = profile.Number();
  facts.name = profile.Get(A::kProfileName).Text();
  entry.why = {LossReason::kUnsupportedProfile, profile.Number()};
  bool isRead = false;
  switch (profile.GetEntity()) {
    case E::kArbitraryClosedProfile:
    case E::kArbitraryProfileWithVoids:
      isRead = ReadArbitrary(profile, facts, entry.why);
      break;
    case E::kCenterLineProfile:
      isRead = ReadCentreLine(profile, facts, entry.why);
      break;
    case E::kCompositeProfile:
      isRead = ReadComposite(profile, depth - 1, facts, entry.why);
      break;
    case E::kCraneRailAProfile:
    case E::kCraneRailFProfile:
      isRead = ReadRail(profile, facts, entry.why);
      break;
    case E::kDerivedProfile:
      isRead = ReadDerived(profile, depth - 1, facts, entry.why);
      break;
    default:
      isRead = ReadShape(profile, facts, entry.why);
  }
  if (isRead) entry.profile = context.memory.Share(std::move(facts));
  return entry;
}

bool ProfileReader::ReadShape(const Instance& profile, ProfileFacts& facts, Unreadable& why) {
  const Entity entity = profile.GetEntity();
  for (const ShapeRow& row : kShapes) {
    if (row.entity == entity) facts.shape = row.shape;
  }
  if (facts.shape == ProfileShape::kArbitrary) return false;
  const double scale = context.units.length.metres;
  for (const SizeRow& row : kSizes) {
    const Value size = profile.Get(row.attribute);
    if (size.IsNumber()) At(facts, row.parameter) = row.factor * scale * size.Number(0.0);
  }
  At(facts, P::kSlope) = context.units.radians * profile.Get(A::kSlope).Number(0.0);
  for (const DefaultRow& row : kDefaults) {
    double& size = At(facts, row.parameter);
    if (row.entity == entity && size == 0.0) size = At(facts, row.source);
  }
  for (const double size : facts.parameters) {
    if (std::abs(size) <= kLargestReadable) continue;
    why.reason = LossReason::kNotFinite;
    return false;
  }
  if (entity == E::kTShapeProfile) ReadWebOfT(profile, facts);
  return ReadPosition(profile, facts, why);
}

// The shape has no parameters for the slope and the edges of the web, so a T that has them is an
// outline. Sizes that make no outline are ignored: the T has a straight web with sharp edges.
void ProfileReader::ReadWebOfT(const Instance& profile, ProfileFacts& facts) const {
  const WebOfT web{context.units.radians * profile.Get(A::kWebSlope).Number(0.0),
                   context.units.length.metres * profile.Get(A::kWebEdgeRadius).Number(0.0)};
  if (web.slope == 0.0 && web.edgeRadius == 0.0) return;
  std::optional<Region> region = TRegion(facts.parameters, web);
  if (!region) return;
  facts.shape = ProfileShape::kArbitrary;
  facts.parameters = {};
  facts.regions.push_back(std::move(*region));
}

bool ProfileReader::ReadRail(const Instance& profile, ProfileFacts& facts, Unreadable& why) {
  const CraneRail rail = ReadCraneRail(profile, context.units.length.metres);
  std::optional<Region> region = IsFinite(rail) ? CraneRailRegion(rail) : std::nullopt;
  if (!region) {
    why.reason = IsFinite(rail) ? LossReason::kDegenerate : LossReason::kNotFinite;
    return false;
  }
  facts.regions.push_back(std::move(*region));
  return ReadPosition(profile, facts, why);
}

bool ProfileReader::ReadPosition(const Instance& profile, ProfileFacts& facts, Unreadable& why) {
  const std::optional<Transform3> axes = ReadAxes(context, profile, A::kPosition, why);
  if (axes) facts.position = PlaneMap(*axes);
  return axes.has_value();
}

bool ProfileReader::ReadArbitrary(const Instance& profile, ProfileFacts& facts, Unreadable& why) {
  const Instance outer = Follow(profile, A::kCurve, why);
  if (!outer) return false;
  std::optional<Contour> contour = ReadContour(context, outer, why);
  if (!contour) return false;
  Region region{std::move(*contour), {}};
  const Value holes = profile.Get(A::kInnerCurves);
  for (std::size_t i = 0; i < holes.Size(); ++i) {
    const Instance hole = holes[i].Target();
    if (!hole) {
      why = {LossReason::kDangling, profile.Number()};
      return false;
    }
    std::optional<Contour> inner = ReadContour(context, hole, why);
    if (!inner) return false;
    region.holes.push_back(std::move(*inner));
  }
  facts.regions.push_back(std::move(region));
  return true;
}

bool ProfileReader::ReadCentreLine(const Instance& profile, ProfileFacts& facts, Unreadable& why) {
  const Instance curve = Follow(profile, A::kCurve, why);
  if (!curve) return false;
  const std::optional<Path> path = ReadCurve(context, curve, why);
  if (!path) return false;
  const double thickness = profile.Get(A::kThickness).Number(0.0) * context.units.length.metres;
  Region region = Thicken(PlanePoints(Flatten(*path)), thickness, IsClosed(*path));
  if (region.outer.points.empty() || !(thickness <= kLargestReadable)) {
    why = {LossReason::kDegenerate, profile.Number()};
    return false;
  }
  facts.regions.push_back(std::move(region));
  return true;
}

bool ProfileReader::ReadComposite(const Instance& profile, std::size_t depth, ProfileFacts& facts,
                                  Unreadable& why) {
  const Value parts = profile.Get(A::kProfiles);
  for (std::size_t i = 0; i < parts.Size(); ++i) {
    const Instance part = parts[i].Target();
    if (!part) {
      why = {LossReason::kDangling, profile.Number()};
      return false;
    }
    const ProfilePointer read = ReadNested(part, depth, why);
    if (read == nullptr) return false;
    for (Region& region : RegionsOf(*read)) {
      std::size_t count = region.outer.points.size();
      for (const Contour& hole : region.holes) count += hole.points.size();
      if (!context.Spend(count)) {
        why = {LossReason::kLimit, profile.Number()};
        return false;
      }
      facts.regions.push_back(std::move(region));
    }
  }
  if (facts.regions.empty()) why = {LossReason::kDegenerate, profile.Number()};
  return !facts.regions.empty();
}

bool ProfileReader::ReadDerived(const Instance& profile, std::size_t depth, ProfileFacts& facts,
                                Unreadable& why) {
  const Instance parent = Follow(profile, A::kParentProfile, why);
  if (!parent) return false;
  const Instance transformation = Follow(profile, A::kOperator, why);
  if (!transformation) return false;
  const ProfilePointer base = ReadNested(parent, depth, why);
  if (base == nullptr) return false;
  const std::optional<Transform3> map = ReadOperator(context, transformation, why);
  if (!map) return false;
  std::string name = facts.name.empty() ? base->name : facts.name;
  facts = *base;
  facts.id = profile.Number();
  facts.name = std::move(name);
  if (facts.shape == ProfileShape::kArbitrary) {
    std::size_t count = 1;
    for (const Region& region : facts.regions) count += region.outer.points.size();
    if (context.Spend(count)) {
      MoveRegions(facts, PlaneMap(*map));
      return true;
    }
    why = {LossReason::kLimit, profile.Number()};
    return false;
  }
  why = {LossReason::kUnsupportedProfile, profile.Number()};
  return MoveShape(facts, PlaneMap(*map));
}

}  // namespace KelIFC::building
