#include "kelifc/geo/reading/profile_section.h"

#include <algorithm>
#include <cmath>

#include "kelifc/geometry/box2.h"

namespace KelIFC {

namespace {

using enum ProfileParameter;

/// Sizes are equal if they differ by less, in metres. A shape is recognised within the same
/// distance.
constexpr double kTolerance = 0.001;

bool IsNear(double a, double b) { return std::abs(a - b) < kTolerance; }

Box2 BoxOf(const Outline& outline) {
  Box2 box;
  box.min = box.max = outline.empty() ? Point2() : outline.front();
  for (const Point2& point : outline) {
    box.min = {std::min(box.min.x, point.x), std::min(box.min.y, point.y)};
    box.max = {std::max(box.max.x, point.x), std::max(box.max.y, point.y)};
  }
  return box;
}

/// The origin is the centroid, which is nearer to the flange than to the foot of the web.
bool HasFlangeOnTop(const Box2& box) { return box.max.y < -box.min.y; }

}  // namespace

HRESULT EnsureProfileSection(CoGeoStructure& structure, CoGeoObject& element,
                             const BuildingProfile& profile) {
  const Box2 box = BoxOf(profile.outline);
  const double width = box.max.x - box.min.x;
  const double height = box.max.y - box.min.y;
  const double b = profile[kB];
  const double h = profile[kH];
  const bool isUpright = IsNear(width, b) && IsNear(height, h);
  if (profile.shape == ProfileShape::kCircle) {
    return structure.EnsureSectionC(element, profile[kD]);
  }
  if (profile.shape == ProfileShape::kRectangle) {
    if (isUpright) return structure.EnsureSectionR(element, b, h);
    if (IsNear(width, h) && IsNear(height, b)) return structure.EnsureSectionR(element, h, b);
  }
  if (profile.shape == ProfileShape::kT && isUpright && HasFlangeOnTop(box)) {
    return structure.EnsureSectionT(element, profile[kTw], h, b, profile[kTf]);
  }
  Mvector<Point2> polygon;
  polygon.reserve(profile.outline.size());
  for (const Point2& point : profile.outline) polygon.push_back(point);
  return structure.AddSectionProfile(element, polygon);
}

}  // namespace KelIFC
