#include "kelifc/building/solid/made_mesh.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "kelifc/building/profile/make_profile.h"
#include "kelifc/building/solid/body.h"
#include "kelifc/building/solid/mesh_tools.h"
#include "kelifc/building/solid/vector_math.h"

namespace KelIFC::building {

namespace {

/// Less than that, in cubic metres, is no volume: a cube of a hundredth of a millimetre.
constexpr double kLeastVolume = 1e-15;
/// Less than that, in square metres, is no area.
constexpr double kLeastArea = 1e-12;

double AreaOf(const Outline& outline) {
  double sum = 0.0;
  for (std::size_t i = 1; i + 1 < outline.size(); ++i) {
    sum += Turn(outline[0], outline[i], outline[i + 1]);
  }
  return sum / 2.0;
}

bool IsUsable(const Contour& contour) {
  for (const Point2& p : contour.points) {
    if (!building::IsUsable(p)) return false;
  }
  for (const ContourArc& arc : contour.arcs) {
    if (!building::IsUsable(arc.through)) return false;
  }
  return true;
}

bool IsUsable(const Region& region) {
  return IsUsable(region.outer) && std::all_of(region.holes.begin(), region.holes.end(),
                                               [](const Contour& c) { return IsUsable(c); });
}

/// Why an outline without an area has none: an eight, or a line.
LossReason ReasonOf(const Outline& outline) {
  BuildingBox box;
  for (const Point2& p : outline) Extend(box, Point3(p.x, p.y, 0.0));
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const double turn = Turn(outline[0], outline[i], outline[(i + 1) % outline.size()]);
    if (std::abs(turn) > kLeastArea) return LossReason::kSelfIntersecting;
  }
  return LossReason::kDegenerate;
}

/// The outlines of a region that crosses itself.
std::optional<LossReason> AddCrossing(const Region& region, FlatProfile& result) {
  FlatRegion flat;
  flat.outer = Flatten(region.outer);
  const double area = AreaOf(flat.outer);
  if (!(std::abs(area) > kLeastArea)) return ReasonOf(flat.outer);
  if (area < 0.0) std::reverse(flat.outer.begin(), flat.outer.end());
  for (const Contour& contour : region.holes) {
    Outline hole = Flatten(contour);
    const double holeArea = AreaOf(hole);
    if (!(std::abs(holeArea) > kLeastArea) || std::abs(holeArea) >= std::abs(area)) continue;
    if (holeArea > 0.0) std::reverse(hole.begin(), hole.end());
    flat.holes.push_back(std::move(hole));
  }
  result.regions.push_back(std::move(flat));
  result.isExact = false;
  return std::nullopt;
}

}  // namespace

MadeMesh Finish(Mesh mesh) {
  for (const Point3& point : mesh.points) {
    if (!IsUsable(point)) return MadeMesh(LossReason::kNotFinite);
  }
  const double volume = VolumeOf(mesh);
  if (!(std::abs(volume) > kLeastVolume)) return MadeMesh(LossReason::kDegenerate);
  MadeMesh result;
  result.mesh = volume < 0.0 ? Flip(mesh) : std::move(mesh);
  return result;
}

std::size_t FlatProfile::PointCount() const {
  std::size_t count = 0;
  for (const FlatRegion& region : regions) {
    count += region.outer.size();
    for (const Outline& hole : region.holes) count += hole.size();
  }
  return count;
}

FlatProfile FlatProfileOf(const ProfilePointer& profile) {
  FlatProfile result;
  result.fault = LossReason::kDegenerate;
  if (profile == nullptr) {
    result.fault = LossReason::kUnsupportedProfile;
    return result;
  }
  for (const double size : profile->parameters) {
    if (!std::isfinite(size)) {
      result.fault = LossReason::kNotFinite;
      return result;
    }
  }
  for (const Region& region : RegionsOf(*profile)) {
    if (!IsUsable(region)) {
      result.fault = LossReason::kNotFinite;
      continue;
    }
    if (std::optional<FlatRegion> flat = Flatten(region)) {
      result.regions.push_back(std::move(*flat));
    } else if (const auto reason = AddCrossing(region, result)) {
      result.fault = reason;
      result.isExact = false;
    }
  }
  if (!result.regions.empty()) result.fault.reset();
  return result;
}

std::size_t ChordCount(double radius, double angle) {
  constexpr double kWidestStep = std::numbers::pi / 6.0;
  constexpr double kMostChords = 1e6;
  double step = kWidestStep;
  if (radius > kChordError) step = std::min(step, 2.0 * std::acos(1.0 - kChordError / radius));
  const double count = std::ceil(std::abs(angle) / step - 1e-9);
  return static_cast<std::size_t>(std::clamp(count, 1.0, kMostChords));
}

}  // namespace KelIFC::building
