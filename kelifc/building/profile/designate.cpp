#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "kelifc/building/profile/make_profile.h"
#include "kelifc/building/profile/parameter_table.h"
#include "kelifc/building/profile/profile_name.h"
#include "kelifc/building/profile/recognise.h"
#include "kelifc/building/profile/standard_sections.h"

namespace KelIFC::building {

namespace {

using enum ProfileParameter;

constexpr double kSizeTolerance = 0.5e-3;
constexpr double kAreaTolerance = 0.05;      // of an outline that a name explains
constexpr double kAreaContradiction = 0.10;  // of an outline that no shape explains

// The shape of a profile, if it has one in any position.
RecognisedShape ShapeOf(const BuildingProfile& profile) {
  if (profile.shape != ProfileShape::kArbitrary) return {profile.shape, profile.parameters};
  return RecogniseTurned({profile.outline, profile.holes}).value_or(RecognisedShape{});
}

// True if the extents of an outline are h and b of a section, in any order.
bool HasExtentsOf(const BuildingProfile& profile, const StandardSection& section) {
  if (profile.outline.empty()) return false;
  const auto [left, right] =
      std::minmax_element(profile.outline.begin(), profile.outline.end(),
                          [](const Point2& a, const Point2& b) { return a.x < b.x; });
  const auto [low, high] =
      std::minmax_element(profile.outline.begin(), profile.outline.end(),
                          [](const Point2& a, const Point2& b) { return a.y < b.y; });
  double larger = right->x - left->x;
  double smaller = high->y - low->y;
  if (larger < smaller) std::swap(larger, smaller);
  double h = ValueOf(section.parameters, kH);
  double b = ValueOf(section.parameters, kB);
  if (h < b) std::swap(h, b);
  return std::abs(larger - h) <= kSizeTolerance && std::abs(smaller - b) <= kSizeTolerance;
}

// The difference of the areas, as a part of the published one; 0 if none is published.
double AreaDifference(const BuildingProfile& profile, const StandardSection& section) {
  return section.area > 0.0 ? std::abs(profile.area / section.area - 1.0) : 0.0;
}

// Compares the designation in the name with the sizes.
void DesignateByName(BuildingProfile& profile, const RecognisedShape& shape,
                     const StandardSection& named) {
  bool agrees = false;
  if (shape.shape != ProfileShape::kArbitrary) {
    agrees = HasSizesOf(named, shape.shape, shape.parameters);
    profile.nameContradicts = !agrees;
  } else {
    agrees = HasExtentsOf(profile, named) && AreaDifference(profile, named) <= kAreaTolerance;
    profile.nameContradicts = AreaDifference(profile, named) > kAreaContradiction;
  }
  if (agrees && named.area > 0.0) profile.designation = named.designation;
}

// True if two numbers, in millimetres, centimetres, metres or inches, are the sides of a rectangle.
// If one number is a side and the other is far from the other side, it is a length or the thickness
// of a plate, which contradicts nothing.
bool MayBeSides(const std::array<double, 2>& numbers, const ProfileParameters& parameters) {
  constexpr double kOtherSize = 2.0;
  const auto sides = std::minmax({ValueOf(parameters, kH), ValueOf(parameters, kB)});
  const auto named = std::minmax({numbers[0], numbers[1]});
  const auto isSame = [](double a, double b) { return std::abs(a - b) <= kSizeTolerance; };
  const auto isFar = [](double a, double b) { return !(a < kOtherSize * b && b < kOtherSize * a); };
  for (const double unit : {1e-3, 1e-2, 1.0, 25.4e-3}) {
    const double smaller = named.first * unit;
    const double larger = named.second * unit;
    if (isSame(smaller, sides.first) && isSame(larger, sides.second)) return true;
    for (const auto& [one, other] : {std::pair{smaller, larger}, {larger, smaller}}) {
      if (isSame(one, sides.first) && isFar(other, sides.second)) return true;
      if (isSame(one, sides.second) && isFar(other, sides.first)) return true;
    }
  }
  return false;
}

}  // namespace

void Designate(BuildingProfile& profile) {
  profile.designation.clear();
  profile.nameContradicts = false;
  const RecognisedShape shape = ShapeOf(profile);
  if (const auto named = ParseProfileName(profile.name)) {
    DesignateByName(profile, shape, *named);
  } else if (shape.shape == ProfileShape::kRectangle) {
    const auto numbers = ParseTwoNumbers(profile.name);
    profile.nameContradicts = numbers && !MayBeSides(*numbers, shape.parameters);
  }
  if (!profile.designation.empty()) return;
  const StandardSection* section = FindStandardSection(shape.shape, shape.parameters);
  if (section != nullptr) profile.designation = section->designation;
}

}  // namespace KelIFC::building
