#include "kelifc/import/linear/convert_item.h"

#include <cmath>

#include "kelifc/geometry/constants.h"
#include "kelifc/geometry/regular_figure.h"
#include "kelifc/geometry/rotation2.h"

namespace KelIFC {

namespace {

/// For outlines, a distance in metres; for the direction of a rectangle, a cosine.
constexpr double kTolerance = 0.001;

/// Sets a section that elements share if the outline is a regular figure, otherwise a section of
/// the outline itself.
HRESULT EnsureOutlineSection(const Mvector<Point2>& outline, CoGeoStructure& structure,
                             CoGeoObject& element) {
  double a = 0.0;
  double b = 0.0;
  double c = 0.0;
  double d = 0.0;
  switch (Poly2RegularFigure(outline, kTolerance, a, b, c, d)) {
    case EGEO_P2RF_RECTANGLE:
      return structure.EnsureSectionR(element, a, b);
    case EGEO_P2RF_T:
      return structure.EnsureSectionT(element, a, b, c, d);
    case EGEO_P2RF_CIRCLE:
      return structure.EnsureSectionC(element, a);
    default:
      return structure.AddSectionProfile(element, outline);
  }
}

HRESULT EnsureSection(const ProfileFacts& profile, CoGeoStructure& structure,
                      CoGeoObject& element) {
  if (profile.kind == ProfileKind::kCircle) {
    if (!profile.hasPosition) return S_OK;
    return structure.EnsureSectionC(element, profile.radius * 2.0);
  }
  if (profile.kind == ProfileKind::kRectangle) {
    const Vector2 size = SectionSize(profile);
    return structure.EnsureSectionR(element, size.x, size.y);
  }
  return EnsureOutlineSection(ToPlane(profile.outline), structure, element);
}

/// Returns the axis in the coordinates of the profile. The axis of an outline goes through the
/// origin of the profile's plane, wherever the outline is.
Mvector<Point3> AxisOf(const ExtrusionFacts& solid) {
  Mvector<Point3> axis;
  const ProfileFacts& profile = solid.profile;
  if (profile.kind == ProfileKind::kCircle && !profile.hasPosition) return axis;
  Vector3 direction = solid.direction;
  Normalise(direction);
  const Point3 start(profile.location.x, profile.location.y, 0.0);
  axis.push_back(start);
  axis.push_back(start + (solid.scale * direction) * solid.depth);
  return axis;
}

bool ConvertExtrusion(const ExtrusionFacts& solid, const Isometry3& outer,
                      const PlacementChain& chain, CoGeoStructure& structure, CoGeoObject& element,
                      LinearShape& shape) {
  if (solid.profile.kind == ProfileKind::kOther) return false;
  if (FAILED(EnsureSection(solid.profile, structure, element))) return false;
  shape.points = AxisOf(solid);
  outer.Apply(shape.points);
  solid.position.Apply(shape.points);
  ApplyPlacementChain(chain, shape.points);
  return true;
}

PlacedBoundary Place(const std::shared_ptr<const BRep>& shape, bool isShared,
                     const Isometry3& outer, const PlacementChain& chain) {
  PlacedBoundary placed;
  placed.shape = shape;
  placed.transforms.reserve(chain.size() + 1);
  if (isShared) placed.transforms.push_back(outer);
  placed.transforms.insert(placed.transforms.end(), chain.begin(), chain.end());
  return placed;
}

}  // namespace

Vector2 SectionSize(const ProfileFacts& rectangle) {
  const Vector2& x = rectangle.refDirection;
  const Vector2 up = Rotate(Vector2(AxisY.x, AxisY.y), Rotation2(DirectionAngle(x.x, x.y)));
  const bool isUpright = kTolerance > std::cos(DirectionAngle(up.x, up.y));
  return isUpright ? Vector2(rectangle.xDim, rectangle.yDim)
                   : Vector2(rectangle.yDim, rectangle.xDim);
}

bool ConvertItem(const LinearItemFacts& item, bool isShared, const Isometry3& outer,
                 const PlacementChain& chain, CoGeoStructure& structure, CoGeoObject& element,
                 LinearShape& shape) {
  if (item.isExtrusion) {
    return ConvertExtrusion(item.extrusion, outer, chain, structure, element, shape);
  }
  if (!item.hasShell) return true;
  shape.points.resize(2);
  if (item.boundary != nullptr) shape.boundary = Place(item.boundary, isShared, outer, chain);
  return true;
}

}  // namespace KelIFC
