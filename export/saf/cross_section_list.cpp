#include "export/saf/cross_section_list.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "export/saf/cell_text.h"
#include "export/saf/cross_section_shape.h"

namespace KelIFC::exporting::saf {
namespace {

// The polygons of a profile as the texts of two cells.
struct PolygonTexts {
  std::string contour;
  std::string openings;  // separated by " || "
};

bool IsFinite(const Outline& outline) {
  return std::all_of(outline.begin(), outline.end(), [](const Point2& point) {
    return std::isfinite(point.x) && std::isfinite(point.y);
  });
}

// None if a coordinate is not finite or if a text is too long for a cell.
std::optional<PolygonTexts> PolygonTextsOf(const BuildingProfile& profile) {
  if (profile.outline.size() < 3 || !IsFinite(profile.outline)) return std::nullopt;
  PolygonTexts texts = {PolygonText(profile.outline), {}};
  for (const Outline& hole : profile.holes) {
    if (!IsFinite(hole)) return std::nullopt;
    if (!texts.openings.empty()) texts.openings += " || ";
    texts.openings += PolygonText(hole);
  }
  if (std::max(texts.contour.size(), texts.openings.size()) > kLongestCell) return std::nullopt;
  return texts;
}

// The name without the material: the designation, the name in the file, or the sizes.
std::string BaseNameOf(const BuildingProfile& profile,
                       const std::optional<ParametricShape>& shape) {
  if (!profile.designation.empty()) return profile.designation;
  if (!profile.name.empty()) return profile.name;
  if (!shape) return "Section";
  std::string name(shape->name);
  name += ' ';
  for (const char c : shape->parameters) {
    if (c != ' ') name += c == ';' ? 'x' : c;
  }
  return name;
}

}  // namespace

CrossSectionList::CrossSectionList(const std::vector<BuildingProfile>& profiles,
                                   MaterialList& materials, Workbook& workbook, IdList& ids)
    : profiles(profiles),
      materials(materials),
      sections(workbook["StructuralCrossSection"]),
      shapes(workbook["CompositeShapeDef"]),
      ids(ids),
      hasMaterial(profiles.size()) {}

const std::string& CrossSectionList::NameOf(std::size_t profile, const BuildingIndex& material) {
  static const std::string none;
  if (profile >= profiles.size()) return none;
  const std::string& materialName = materials.NameOf(material);
  const auto [at, isNew] = written.try_emplace({profile, materialName});
  if (isNew) {
    at->second = Write(profiles[profile], materialName, !hasMaterial[profile]);
    hasMaterial[profile] = true;
  }
  return at->second;
}

std::string CrossSectionList::Write(const BuildingProfile& profile, std::string_view material,
                                    bool isFirst) {
  const std::optional<ParametricShape> shape = ParametricShapeOf(profile);
  const std::optional<int> form = shape ? std::nullopt : FormCodeOf(profile);
  const bool isGeneral = !form && !shape;
  if (!sections.HasRoomFor(1) || (isGeneral && !PolygonTextsOf(profile))) return {};

  std::string name = BaseNameOf(profile, shape);
  if (!isFirst) name += " (" + std::string(material) + ')';
  name = names.Take(name, "Section");
  if (isGeneral && !WriteShape(profile, name, material)) return {};

  sections.BeginRow();
  sections.Set("Name", name);
  sections.Set("Material", material);
  sections.Set("Cross-section type", form ? "Manufactured" : (shape ? "Parametric" : "General"));
  if (shape) sections.Set("Shape", shape->name);
  if (shape) sections.Set("Parameters [mm]", shape->parameters);
  if (form) sections.Set("Profile", profile.designation);
  if (form) sections.Set("Form code", std::to_string(*form));
  if (isGeneral) sections.Set("Profile", name);
  sections.Set("A [m2]", profile.area);
  sections.Set("Iy [m4]", profile.iy);
  sections.Set("Iz [m4]", profile.iz);
  sections.Set("Id", ids.Take("section/" + name));
  return name;
}

bool CrossSectionList::WriteShape(const BuildingProfile& profile, std::string_view name,
                                  std::string_view material) {
  const std::optional<PolygonTexts> texts = PolygonTextsOf(profile);
  if (!texts || !shapes.HasRoomFor(1)) return false;
  shapes.BeginRow();
  shapes.Set("Name", name);
  shapes.Set("Material 1", material);
  shapes.Set("Polygon contour 1 [mm]", texts->contour);
  shapes.Set("Polygon openings 1 [mm]", texts->openings);
  shapes.Set("Id", ids.Take("shape/" + std::string(name)));
  return true;
}

}  // namespace KelIFC::exporting::saf
