#include "export/svg/element_form.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <string>

namespace KelIFC::exporting::svg {
namespace {

constexpr double kFlat = 0.985;     // the least z of the normal of a flat surface: 10 degrees
constexpr double kUpright = 0.174;  // the largest z of the normal of an upright one: 10 degrees

// A part of the name of a material, in lower case.
struct MaterialWord {
  std::string_view word;
  Hatch hatch;
};

// The first word that a name contains decides, so that "concrete block" is masonry and
// "Stahlbeton" is concrete. The words are English, German, French, Dutch, Italian and Spanish.
constexpr MaterialWord kMaterialWords[] = {
    {"masonry", Hatch::kMasonry},
    {"brick", Hatch::kMasonry},
    {"block", Hatch::kMasonry},
    {"mauerwerk", Hatch::kMasonry},
    {"ziegel", Hatch::kMasonry},
    {"kalksand", Hatch::kMasonry},
    {"ma\xC3\xA7onnerie", Hatch::kMasonry},
    {"brique", Hatch::kMasonry},
    {"parpaing", Hatch::kMasonry},
    {"metselwerk", Hatch::kMasonry},
    {"baksteen", Hatch::kMasonry},
    {"kalkzand", Hatch::kMasonry},
    {"muratura", Hatch::kMasonry},
    {"mattoni", Hatch::kMasonry},
    {"ladrillo", Hatch::kMasonry},
    {"concrete", Hatch::kConcrete},
    {"beton", Hatch::kConcrete},
    {"b\xC3\xA9ton", Hatch::kConcrete},
    {"calcestruzzo", Hatch::kConcrete},
    {"hormig\xC3\xB3n", Hatch::kConcrete},
    {"timber", Hatch::kTimber},
    {"wood", Hatch::kTimber},
    {"lumber", Hatch::kTimber},
    {"glulam", Hatch::kTimber},
    {"holz", Hatch::kTimber},
    {"hout", Hatch::kTimber},
    {"legno", Hatch::kTimber},
    {"madera", Hatch::kTimber},
    {"steel", Hatch::kSteel},
    {"stahl", Hatch::kSteel},
    {"staal", Hatch::kSteel},
    {"acier", Hatch::kSteel},
    {"acciaio", Hatch::kSteel},
    {"acero", Hatch::kSteel},
};

std::string LowerCase(std::string_view text) {
  constexpr std::size_t kLongest = 200;  // a longer name says nothing more about the material
  std::string lower(text.substr(0, kLongest));
  std::transform(lower.begin(), lower.end(), lower.begin(), [](char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  });
  return lower;
}

Hatch HatchOfName(std::string_view name) {
  const std::string lower = LowerCase(name);
  for (const MaterialWord& entry : kMaterialWords) {
    if (lower.find(entry.word) != std::string::npos) return entry.hatch;
  }
  return Hatch::kGeneral;
}

// Rolled and welded sections are of steel unless a material says otherwise.
bool IsSteelShape(ProfileShape shape) {
  constexpr std::array kShapes = {ProfileShape::kI,           ProfileShape::kAsymmetricI,
                                  ProfileShape::kU,           ProfileShape::kL,
                                  ProfileShape::kT,           ProfileShape::kZ,
                                  ProfileShape::kC,           ProfileShape::kHollowRectangle,
                                  ProfileShape::kHollowCircle};
  return std::find(kShapes.begin(), kShapes.end(), shape) != kShapes.end();
}

// The z of the unit tangent between the ends of a member; 0 if both ends are one point.
double SlopeOf(const MemberAxis& member) {
  if (member.points.size() < 2) return 0.0;
  const Vector3 along = member.points.back() - member.points.front();
  const double length = Length(along);
  return length > 0.0 ? std::abs(along.z) / length : 0.0;
}

}  // namespace

bool IsFlat(const BuildingElement& element) {
  return element.surface && !element.surface->sweep && std::abs(element.surface->normal.z) >= kFlat;
}

bool IsLevelMember(const BuildingElement& element) {
  constexpr double kLevel = 0.7071;
  return element.member && SlopeOf(*element.member) < kLevel;
}

bool IsSloping(const BuildingElement& element) {
  if (element.member && element.member->curve == CurveForm::kLine) {
    const double slope = SlopeOf(*element.member);
    return slope > kUpright && slope < kFlat;
  }
  if (!element.surface || element.surface->sweep) return false;
  const double slope = std::abs(element.surface->normal.z);
  return slope > kUpright && slope < kFlat;
}

std::string_view NameOf(Hatch hatch) {
  static constexpr std::array<std::string_view, kHatchCount> kNames = {
      "general", "concrete", "masonry", "steel", "timber"};
  return kNames[static_cast<std::size_t>(hatch)];
}

Hatch HatchOf(const Building& building, const BuildingElement& element) {
  if (element.material && *element.material < building.materials.size()) {
    const Hatch hatch = HatchOfName(building.materials[*element.material].name);
    if (hatch != Hatch::kGeneral) return hatch;
  }
  if (!element.member || element.member->profile >= building.profiles.size()) {
    return Hatch::kGeneral;
  }
  return IsSteelShape(building.profiles[element.member->profile].shape) ? Hatch::kSteel
                                                                        : Hatch::kGeneral;
}

}  // namespace KelIFC::exporting::svg
