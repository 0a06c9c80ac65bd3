#include "export/svg/plan_drawing.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "kelifc/building/element_solid.h"
#include "kelifc/building/plane_cut.h"

#include "export/svg/cut_with_gaps.h"
#include "export/svg/markup.h"
#include "export/text.h"

namespace KelIFC::exporting::svg {
namespace {

constexpr std::size_t kLongestName = 80;  // in characters

bool IsFinite(const Mesh& mesh) {
  return std::all_of(mesh.points.begin(), mesh.points.end(), [](const Point3& p) {
    return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z);
  });
}

bool IsWall(const BuildingElement& element) {
  return element.className == "IfcWall" || element.className == "IfcWallStandardCase" ||
         (element.surface && !IsFlat(element) && !IsSloping(element));
}

bool IsColumn(const BuildingElement& element) {
  return element.className == "IfcColumn" ||
         (element.member && !IsLevelMember(element) && !IsSloping(element));
}

Layer CutLayerOf(const BuildingElement& element) {
  if (IsWall(element)) return Layer::kWalls;
  return IsColumn(element) ? Layer::kColumns : Layer::kParts;
}

Layer LayerFromAbove(const BuildingElement& element, Look look) {
  if (look == Look::kHidden) return Layer::kHidden;
  if (look == Look::kAbove) return element.member ? Layer::kBeamsAbove : Layer::kAbove;
  return IsFlat(element) ? Layer::kSlabs : Layer::kLower;
}

// What a browser shows while the pointer is on an element.
std::string TitleOf(const Building& building, const BuildingElement& element) {
  std::string title = Shortened(element.name, kLongestName);
  if (!title.empty()) title += ", ";
  title += Shortened(element.className, kLongestName) + " #" + std::to_string(element.id);
  const std::string profile = ProfileLabelOf(building, element);
  if (!profile.empty()) title += ", " + profile;
  if (element.isApproximate) title += ", approximate";
  return title;
}

// Opens the group of an element. The caller closes it with "</g>\n".
void OpenGroup(std::string& markup, const Building& building, const BuildingElement& element,
               std::string_view cssClass) {
  markup.append("<g id=\"e").append(std::to_string(element.id)).append("\"");
  if (!cssClass.empty()) markup.append(" class=\"").append(cssClass).append("\"");
  markup.append("><title>").append(XmlText(TitleOf(building, element))).append("</title>");
}

std::string PathOf(const std::vector<PlanLine>& lines, const Sheet& sheet) {
  std::string data;
  for (const PlanLine& line : lines) AppendPath(data, sheet, line.points, line.isClosed);
  return data;
}

Outline OnPlan(const std::vector<Point3>& points) {
  Outline outline;
  outline.reserve(points.size());
  for (const Point3& p : points) outline.emplace_back(p.x, p.y);
  return outline;
}

// The holes that openings make in a slab: their outlines, and a cross in those with four corners.
void AppendHoles(std::string& markup, const Sheet& sheet, const BuildingElement& element) {
  for (const BuildingOpening& opening : element.openings) {
    const Outline outline = OnPlan(opening.outline);
    std::string data;
    AppendPath(data, sheet, outline, true);
    AppendPathElement(markup, {}, data);
    if (outline.size() != 4) continue;
    std::string cross;
    AppendPath(cross, sheet, {outline[0], outline[2]}, false);
    AppendPath(cross, sheet, {outline[1], outline[3]}, false);
    AppendPathElement(markup, "cross", cross);
  }
}

std::string_view ClassOf(OpeningKind kind) {
  const std::string_view text = TextOf(kind);
  return text.empty() ? "void" : text;
}

// The lines that are seen in the openings of a cut element.
void AppendGaps(std::string& markup, const Sheet& sheet, const BuildingElement& element,
                const std::vector<GapLines>& gaps) {
  for (const GapLines& gap : gaps) {
    markup.append("<g class=\"").append(ClassOf(element.openings[gap.opening].kind));
    markup += "\">";
    AppendPathElement(markup, "face", PathOf(gap.faces, sheet));
    AppendPathElement(markup, "middle", PathOf({{gap.middle, false}}, sheet));
    markup += "</g>\n";
  }
}

// Half of the extent of a solid square to a line, in metres.
double HalfWidthOf(const Mesh& solid, const Point2& from, const Point2& to) {
  Vector2 across(from.y - to.y, to.x - from.x);
  Normalise(across);
  double half = 0.0;
  for (const Point3& p : solid.points) {
    half = std::max(half, std::abs(Dot(Point2(p.x, p.y) - from, across)));
  }
  return half;
}

}  // namespace

std::string_view NameOf(Layer layer) {
  static constexpr std::array<std::string_view, kLayerCount> kNames = {
      "hidden", "slabs",    "lower", "walls",       "columns",
      "parts",  "openings", "above", "beams-above", "texts"};
  return kNames[static_cast<std::size_t>(layer)];
}

PlanDrawing::PlanDrawing(const Building& building, const Plan& plan, const Sheet& sheet)
    : building(building), plan(plan), sheet(sheet), field(sheet) {}

bool PlanDrawing::Draw(const PlanItem& item) {
  const BuildingElement& element = building.elements[item.element];
  const Mesh solid = SolidOf(building, element);
  if (solid.IsEmpty() || !IsFinite(solid)) return false;
  bool isDrawn = false;
  Look look = item.look;
  if (look == Look::kCut) {
    isDrawn = DrawCut(item.element, solid);
    // A body with gaps has no section. It is drawn like what is below the cut.
    if (!isDrawn) look = Look::kBelow;
  }
  if (!isDrawn) isDrawn = DrawFromAbove(item.element, LayerFromAbove(element, look), solid);
  if (!isDrawn) return false;
  ++looks[static_cast<std::size_t>(look)];
  if (item.hasLabel || look == Look::kCut) KeepLabel(item.element, look, solid);
  return true;
}

bool PlanDrawing::DrawCut(std::size_t index, const Mesh& solid) {
  const BuildingElement& element = building.elements[index];
  const std::vector<CutRegion> cut = CutAtHeight(solid, plan.cut);
  if (cut.empty()) return false;
  const CutWithGaps drawn = TakeOut(cut, GapsAt(element, plan.cut));
  const Hatch hatch = HatchOf(building, element);
  hatches[static_cast<std::size_t>(hatch)] = true;
  std::string& markup = LayerOf(CutLayerOf(element));
  OpenGroup(markup, building, element, NameOf(hatch));
  std::string fill;
  for (const std::vector<Outline>& loops : drawn.fills) {
    for (const Outline& loop : loops) {
      AppendPath(fill, sheet, loop, true);
      if (IsColumn(element)) field.Block(loop);
    }
  }
  AppendPathElement(markup, "fill", fill);
  AppendPathElement(markup, "edge", PathOf(drawn.edges, sheet));
  if (IsSloping(element)) {
    AppendPathElement(markup, "slope", PathOf(LinesFromAbove(element, solid), sheet));
  }
  markup += "</g>\n";
  AppendGaps(LayerOf(Layer::kOpenings), sheet, element, drawn.gaps);
  return true;
}

bool PlanDrawing::DrawFromAbove(std::size_t index, Layer layer, const Mesh& solid) {
  const BuildingElement& element = building.elements[index];
  const std::string data = PathOf(LinesFromAbove(element, solid), sheet);
  if (data.empty()) return false;
  std::string& markup = LayerOf(layer);
  OpenGroup(markup, building, element, {});
  AppendPathElement(markup, {}, data);
  if (IsFlat(element)) AppendHoles(markup, sheet, element);
  markup += "</g>\n";
  return true;
}

void PlanDrawing::KeepLabel(std::size_t index, Look look, const Mesh& solid) {
  const BuildingElement& element = building.elements[index];
  if (IsFlat(element)) {
    if (look == Look::kBelow) {
      waiting.push_back({Placing::kIn, index, OnPlan(element.surface->outline), 0.0});
    }
    return;
  }
  if (!element.member) return;
  if (IsLevelMember(element)) {
    const Point3& from = element.member->points.front();
    const Point3& to = element.member->points.back();
    const Outline ends{{from.x, from.y}, {to.x, to.y}};
    waiting.push_back({Placing::kAlong, index, ends, HalfWidthOf(solid, ends[0], ends[1])});
    return;
  }
  if (look == Look::kCut && IsColumn(element)) {
    Outline hull;
    for (const CutRegion& region : CutAtHeight(solid, plan.cut)) {
      hull.insert(hull.end(), region.outer.begin(), region.outer.end());
    }
    waiting.push_back({Placing::kBeside, index, std::move(hull), 0.0});
  }
}

void PlanDrawing::PlaceLabels() {
  // Labels with the least choice of places come first.
  std::stable_sort(
      waiting.begin(), waiting.end(),
      [](const WaitingLabel& a, const WaitingLabel& b) { return a.placing < b.placing; });
  for (WaitingLabel& label : waiting) {
    const BuildingElement& element = building.elements[label.element];
    if (label.placing == Placing::kIn) {
      field.PlaceIn(label.outline, SlabLabelOf(element));
      continue;
    }
    std::string text = ProfileLabelOf(building, element);
    if (label.placing == Placing::kBeside) {
      field.PlaceBeside(label.outline, std::move(text));
    } else {
      field.PlaceAlong(label.outline[0], label.outline[1], label.halfWidth, std::move(text));
    }
  }
  std::string& markup = LayerOf(Layer::kTexts);
  for (const Label& label : field.Labels()) {
    AppendText(markup, label.at, label.text, {{}, label.angle});
  }
}

}  // namespace KelIFC::exporting::svg
