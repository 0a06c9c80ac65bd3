#include "kelifc/building/build/finite.h"

#include <algorithm>
#include <cmath>

namespace KelIFC::building {
namespace {

bool AreFinite(std::initializer_list<double> numbers) {
  return std::all_of(numbers.begin(), numbers.end(), [](double n) { return std::isfinite(n); });
}

bool IsFinite(const Point2& p) { return AreFinite({p.x, p.y}); }
bool IsFinite(const Vector2& v) { return AreFinite({v.x, v.y}); }
bool IsFinite(const Point3& p) { return AreFinite({p.x, p.y, p.z}); }
bool IsFinite(const Vector3& v) { return AreFinite({v.x, v.y, v.z}); }
bool IsFinite(const OutlineArc& arc) { return IsFinite(arc.through); }
bool IsFinite(const BuildingBox& box) {
  return !box.IsEmpty() && IsFinite(box.min) && IsFinite(box.max);
}

template <class Value>
bool IsFinite(const std::vector<Value>& values) {
  return std::all_of(values.begin(), values.end(),
                     [](const Value& value) { return IsFinite(value); });
}

bool IsFinite(const std::optional<EndPlane>& end) {
  return !end || (IsFinite(end->point) && IsFinite(end->normal));
}

bool IsFinite(const BuildingProfile& profile) {
  return IsFinite(profile.outline) && IsFinite(profile.holes) &&
         AreFinite({profile.area, profile.iy, profile.iz, profile.iyz}) &&
         std::all_of(profile.parameters.begin(), profile.parameters.end(),
                     [](double size) { return std::isfinite(size); });
}

bool IsFinite(const MemberAxis& member) {
  return IsFinite(member.points) && IsFinite(member.y) && IsFinite(member.offset) &&
         IsFinite(member.ends[0]) && IsFinite(member.ends[1]);
}

bool IsFinite(const WallSweep& sweep) {
  return IsFinite(sweep.points) && IsFinite(sweep.direction) && std::isfinite(sweep.height);
}

bool IsFinite(const SurfaceRegion& surface) {
  return IsFinite(surface.outline) && IsFinite(surface.arcs) && IsFinite(surface.holes) &&
         IsFinite(surface.normal) && AreFinite({surface.thickness, surface.reference}) &&
         (!surface.sweep || IsFinite(*surface.sweep));
}

template <class Value>
bool IsFiniteIfThere(const std::optional<Value>& value) {
  return !value || IsFinite(*value);
}

}  // namespace

bool IsFinite(const Mesh& mesh) { return IsFinite(mesh.points); }

bool IsFinite(const Idealisation& ideal) {
  return IsFiniteIfThere(ideal.member) && IsFiniteIfThere(ideal.profile) &&
         IsFiniteIfThere(ideal.endProfile) && IsFiniteIfThere(ideal.surface) &&
         IsFinite(ideal.box) && AreFinite({ideal.volume, ideal.deviation}) &&
         std::isfinite(ideal.volumeRatio.value_or(0.0));
}

bool IsFinite(const BuildingOpening& opening) {
  return IsFinite(opening.outline) && std::isfinite(opening.depth);
}

}  // namespace KelIFC::building
