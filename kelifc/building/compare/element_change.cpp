#include "kelifc/building/compare/element_change.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "kelifc/building/measures.h"
#include "kelifc/building/profile/make_profile.h"

namespace KelIFC::building {
namespace {

constexpr double kPi = 3.14159265358979323846;

/// A length in metres as millimetres, rounded to 0.01 mm.
std::string Millimetres(double metres) {
  const double rounded = std::round(metres * 1e5) / 100.0;
  std::array<char, 32> digits = {};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), rounded);
  return {digits.data(), end.ptr};
}

/// The shape and the sizes that are not 0, in the order of the parameters.
std::string SizesText(const BuildingProfile& profile) {
  std::string text(TextOf(profile.shape));
  for (std::size_t i = 0; i < profile.parameters.size(); ++i) {
    if (profile.parameters[i] == 0.0) continue;
    text += ' ';
    text += TextOf(static_cast<ProfileParameter>(i));
    text += '=' + Millimetres(profile.parameters[i]);
  }
  return text;
}

std::string ProfileText(const BuildingProfile& profile) {
  if (!profile.designation.empty()) return profile.designation;
  return profile.name.empty() ? SizesText(profile) : profile.name;
}

const BuildingProfile& ProfileAt(const Building& building, std::size_t index) {
  static const BuildingProfile none;
  return index < building.profiles.size() ? building.profiles[index] : none;
}

const BuildingProfile& ProfileOf(const Building& building, const BuildingElement& element) {
  return ProfileAt(building, element.member->profile);
}

std::string EndKey(const Building& building, const BuildingElement& element) {
  const BuildingIndex& end = element.member->endProfile;
  return end ? ProfileKey(ProfileAt(building, *end)) : std::string();
}

using Texts = std::pair<std::string, std::string>;

/// The texts of two sections that differ. Profiles with the same name show their sizes, too.
Texts SectionTexts(const Building& oldBuilding, const BuildingElement& oldElement,
                   const Building& newBuilding, const BuildingElement& newElement) {
  Texts texts = {SectionText(oldBuilding, oldElement), SectionText(newBuilding, newElement)};
  if (texts.first == texts.second && oldElement.member && newElement.member) {
    texts.first += " (" + SizesText(ProfileOf(oldBuilding, oldElement)) + ")";
    texts.second += " (" + SizesText(ProfileOf(newBuilding, newElement)) + ")";
  }
  return texts;
}

struct Displacement {
  double moved = 0.0;
  double rotated = 0.0;
};

Displacement DisplacementOf(const MemberAxis& from, const MemberAxis& to) {
  if (from.points.empty() || to.points.empty()) return {};
  const auto ends = [&](const Point3& start, const Point3& end) {
    return std::minmax({Length(start - from.points.front()), Length(end - from.points.back())});
  };
  const auto forward = ends(to.points.front(), to.points.back());
  const auto backward = ends(to.points.back(), to.points.front());
  const bool isReversed = backward.second < forward.second;
  const Vector3 oldAxis = from.points.back() - from.points.front();
  const Vector3 newAxis = to.points.back() - to.points.front();
  const double tilt = Angle(oldAxis, isReversed ? -newAxis : newAxis);
  const double turn = isReversed ? 0.0 : Angle(from.y, to.y);
  return {isReversed ? backward.first : forward.first, std::max(tilt, turn)};
}

/// The smaller displacement of the two opposite corners of a box: 0 if it grows at one side.
double MoveOf(const BuildingBox& from, const BuildingBox& to) {
  return std::min(Length(to.min - from.min), Length(to.max - from.max));
}

Displacement DisplacementOf(const BuildingElement& from, const BuildingElement& to) {
  if (from.member && to.member) return DisplacementOf(*from.member, *to.member);
  Displacement displacement = {MoveOf(from.box, to.box), 0.0};
  if (from.surface && to.surface) {
    const double angle = Angle(from.surface->normal, to.surface->normal);
    displacement.rotated = std::min(angle, kPi - angle);  // a plane has two normals
  }
  return displacement;
}

double ComparedLength(const BuildingElement& element) {
  if (element.member) return LengthOf(*element.member);
  if (element.surface) return PerimeterOf(*element.surface);
  return Length(element.box.max - element.box.min);
}

}  // namespace

std::string SectionText(const Building& building, const BuildingElement& element) {
  if (element.member) return ProfileText(ProfileOf(building, element));
  if (element.surface) return "thickness=" + Millimetres(element.surface->thickness);
  return "";
}

bool HaveSameSection(const Building& oldBuilding, const BuildingElement& oldElement,
                     const Building& newBuilding, const BuildingElement& newElement) {
  constexpr double kSameThickness = 1e-4;
  if (oldElement.kind != newElement.kind) return false;
  if (oldElement.member && newElement.member) {
    return ProfileKey(ProfileOf(oldBuilding, oldElement)) ==
               ProfileKey(ProfileOf(newBuilding, newElement)) &&
           EndKey(oldBuilding, oldElement) == EndKey(newBuilding, newElement);
  }
  if (oldElement.surface && newElement.surface) {
    const double difference = newElement.surface->thickness - oldElement.surface->thickness;
    return std::abs(difference) <= kSameThickness;
  }
  return true;
}

std::optional<ElementChange> ChangeOf(const Building& oldBuilding,
                                      const BuildingElement& oldElement,
                                      const Building& newBuilding,
                                      const BuildingElement& newElement,
                                      const ComparisonOptions& options) {
  ElementChange change;
  change.oldId = oldElement.id;
  change.newId = newElement.id;
  const Displacement displacement = DisplacementOf(oldElement, newElement);
  const bool hasMoved = displacement.moved > options.leastMove;
  const bool hasRotated = displacement.rotated > options.leastRotation;
  if (hasMoved) change.moved = displacement.moved;
  if (hasRotated) change.rotated = displacement.rotated;
  if (!HaveSameSection(oldBuilding, oldElement, newBuilding, newElement)) {
    change.profile = SectionTexts(oldBuilding, oldElement, newBuilding, newElement);
  }
  const std::pair<double, double> lengths = {ComparedLength(oldElement),
                                             ComparedLength(newElement)};
  const bool isComparable = oldElement.kind == newElement.kind;
  if (isComparable && std::abs(lengths.second - lengths.first) > options.leastLengthening) {
    change.length = lengths;
  }
  if (hasMoved || hasRotated || change.profile || change.length) return change;
  return std::nullopt;
}

}  // namespace KelIFC::building
