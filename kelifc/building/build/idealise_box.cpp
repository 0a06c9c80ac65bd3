#include "kelifc/building/build/idealise_box.h"

#include <algorithm>
#include <cmath>

#include "kelifc/building/build/idealise_member.h"
#include "kelifc/building/build/idealise_profile.h"
#include "kelifc/building/build/idealise_surface.h"

namespace KelIFC::building::idealising {
namespace {

Outline RectangleOf(double width, double height) {
  const double x = width / 2;
  const double y = height / 2;
  return {{-x, -y}, {x, -y}, {x, y}, {-x, y}};
}

double HalfAlong(const SpaceBox& box, const Vector3& direction) {
  double half = 0.0;
  for (std::size_t i = 0; i < 3; ++i) {
    half += std::fabs(Dot(box.axes[i], direction)) * box.sizes[i] / 2;
  }
  return half;
}

// The section of a box in a plane that is square to one of its axes.
FlatRegion SectionOf(const SpaceBox& box, std::size_t axis, const PlaneFrame& plane) {
  const std::size_t first = (axis + 1) % 3;
  const std::size_t second = (axis + 2) % 3;
  FlatRegion region;
  for (const Point2& p : RectangleOf(box.sizes[first], box.sizes[second])) {
    const Point3 corner = box.centre + (p.x * box.axes[first] + p.y * box.axes[second]);
    region.outer.push_back(Project(plane, corner));
  }
  if (AreaOf(region.outer) < 0.0) std::reverse(region.outer.begin(), region.outer.end());
  return region;
}

std::optional<Reading> ReadMemberAlong(Subject& subject, const SpaceBox& box, std::size_t axis) {
  const Vector3 x = OrientAxis(subject, box.axes[axis]);
  const PlaneFrame plane = FrameAcross(x, box.centre);
  FoundProfile found = FindProfile(SectionOf(box, axis, plane), plane, {});
  const double half = HalfAlong(box, x);
  Reading reading;
  reading.kind = ElementKind::kMember;
  reading.member.points = {found.frame.origin + -half * x, found.frame.origin + half * x};
  reading.member.y = found.frame.x;
  const Proportions proportions = ProportionsOfMember(found.profile.outline, 2 * half);
  reading.suitability = SuitabilityOfMember(subject.role, proportions);
  reading.size = 2 * half / std::max(proportions.slenderness, 1e-9);
  reading.profile = std::move(found.profile);
  if (!Measure(subject, reading)) return std::nullopt;
  return reading;
}

std::optional<Reading> ReadSurfaceAcross(Subject& subject, const SpaceBox& box, std::size_t axis) {
  const PlaneFrame plane = FrameAcross(box.axes[axis], box.centre);
  Contour outline;
  outline.points = SectionOf(box, axis, plane).outer;
  Span span;
  const double level = At(box.centre, box.axes[axis]);
  span.Add(level - box.sizes[axis] / 2);
  span.Add(level + box.sizes[axis] / 2);
  Reading reading = MakeSurface(subject, plane, outline, {}, span);
  if (!Measure(subject, reading)) return std::nullopt;
  return reading;
}

}  // namespace

bool IsRectangle(const BuildingProfile& profile) {
  const Outline& p = profile.outline;
  if (p.size() != 4 || !profile.holes.empty()) return false;
  for (std::size_t i = 0; i < 4; ++i) {
    const Vector2 a = p[(i + 1) % 4] - p[i];
    const Vector2 b = p[(i + 2) % 4] - p[(i + 1) % 4];
    if (!(Length(a) > 0.0) || std::fabs(Dot(a, b)) > 1e-6 * Length(a) * Length(b)) return false;
  }
  return true;
}

SpaceBox MakeBox(const Outline& rectangle, const PlaneFrame& frame, const Vector3& along,
                 double depth) {
  const Vector2 a = rectangle[1] - rectangle[0];
  const Vector2 b = rectangle[2] - rectangle[1];
  const Point2 middle{(rectangle[0].x + rectangle[2].x) / 2, (rectangle[0].y + rectangle[2].y) / 2};
  SpaceBox box;
  box.centre = Lift(frame, middle) + (depth / 2) * along;
  box.axes = {Unit(a.x * frame.x + a.y * frame.y), Unit(b.x * frame.x + b.y * frame.y), along};
  box.sizes = {Length(a), Length(b), depth};
  return box;
}

std::optional<Reading> ReadBox(Subject& subject, const SpaceBox& box, double alongThird) {
  bool isSurface = false;
  std::size_t best = 3;
  double suitability = alongThird + 0.01;
  for (std::size_t axis = 0; axis < 3; ++axis) {
    const double first = box.sizes[(axis + 1) % 3];
    const double second = box.sizes[(axis + 2) % 3];
    const Outline section = RectangleOf(first, second);
    const double asSurface =
        SuitabilityOfSurface(subject.role, ProportionsOfSurface(section, {}, box.sizes[axis])) +
        PreferenceOf(subject, box.axes[axis]);
    const double asMember =
        SuitabilityOfMember(subject.role, ProportionsOfMember(section, box.sizes[axis]));
    const bool isBetter = std::max(asSurface, asMember) > suitability + 1e-9;
    if (!isBetter || (axis == 2 && asMember >= asSurface)) continue;
    best = axis;
    isSurface = asSurface > asMember;
    suitability = std::max(asSurface, asMember);
  }
  if (best == 3) return std::nullopt;
  return isSurface ? ReadSurfaceAcross(subject, box, best) : ReadMemberAlong(subject, box, best);
}

}  // namespace KelIFC::building::idealising
