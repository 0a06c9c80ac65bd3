#include <cmath>
#include <numbers>
#include <utility>

#include "kelifc/building/profile/make_profile.h"
#include "kelifc/building/profile/recognise.h"

namespace KelIFC::building {

namespace {

constexpr double kQuarter = std::numbers::pi / 2.0;
constexpr double kSmallestRotation = 0.01 * std::numbers::pi / 180.0;

// A section whose second moments differ by less than this part has no distinct principal axes.
constexpr double kDistinct = 1e-4;

bool IsIsotropic(const RegionProperties& properties) {
  const double half = (properties.iy - properties.iz) / 2.0;
  return !(std::hypot(half, properties.iyz) > kDistinct * (properties.iy + properties.iz) / 2.0);
}

// The rotation of the principal axes with iy >= iz, more than -90 up to 90 degrees. Rotations by
// less than 0.01 degrees beside a multiple of 90 degrees are that multiple.
double PrincipalRotation(const RegionProperties& properties) {
  const double rotation = 0.5 * std::atan2(-2.0 * properties.iyz, properties.iy - properties.iz);
  if (std::abs(rotation) < kSmallestRotation) return 0.0;
  if (kQuarter - std::abs(rotation) < kSmallestRotation) return kQuarter;
  return rotation;
}

// Subtracts a point and turns by minus the rotation; exactly for multiples of 90 degrees.
class ToProfile {
 public:
  ToProfile(const Point2& where, double rotation) : centroid(where) {
    if (rotation == kQuarter) {
      cosine = 0.0;
      sine = 1.0;
    } else {
      cosine = std::cos(rotation);
      sine = std::sin(rotation);
    }
  }

  Point2 operator()(const Point2& point) const {
    const Vector2 p = point - centroid;
    return {cosine * p.x + sine * p.y, cosine * p.y - sine * p.x};
  }

  RegionProperties operator()(const RegionProperties& about) const {
    RegionProperties turned = about;
    const double cc = cosine * cosine;
    const double ss = sine * sine;
    const double cs = cosine * sine;
    turned.iy = about.iy * cc + about.iz * ss - 2.0 * about.iyz * cs;
    turned.iz = about.iz * cc + about.iy * ss + 2.0 * about.iyz * cs;
    turned.iyz = about.iyz * (cc - ss) + (about.iy - about.iz) * cs;
    return turned;
  }

 private:
  Point2 centroid;
  double cosine = 1.0;
  double sine = 0.0;
};

// The profile of a region in axes through its centroid.
BuildingProfile ProfileIn(const FlatRegion& region, const RegionProperties& properties,
                          double rotation) {
  const ToProfile map(properties.centroid, rotation);
  BuildingProfile profile;
  for (const Point2& point : region.outer) profile.outline.push_back(map(point));
  for (const Outline& hole : region.holes) {
    Outline& turned = profile.holes.emplace_back();
    for (const Point2& point : hole) turned.push_back(map(point));
  }
  const RegionProperties about = map(properties);
  profile.area = about.area;
  profile.iy = about.iy;
  profile.iz = about.iz;
  profile.iyz = about.iyz;
  return profile;
}

}  // namespace

SlicedProfile MakeProfile(const FlatRegion& region, const std::string& name) {
  const RegionProperties properties = PropertiesOf(region);
  SlicedProfile sliced;
  sliced.centroid = properties.centroid;
  if (!IsIsotropic(properties)) {
    sliced.rotation = PrincipalRotation(properties);
  } else if (!Recognise(region)) {
    sliced.rotation = RotationOfLongestEdge(region.outer);
  }
  sliced.profile = ProfileIn(region, properties, sliced.rotation);
  sliced.profile.name = name;
  if (const auto found = RecogniseTurned({sliced.profile.outline, sliced.profile.holes})) {
    sliced.profile.shape = found->shape;
    sliced.profile.parameters = found->parameters;
  }
  Designate(sliced.profile);
  return sliced;
}

}  // namespace KelIFC::building
