#include "export/svg/sheet_frame.h"

#include <array>
#include <cmath>
#include <string_view>

#include "export/svg/markup.h"

namespace KelIFC::exporting::svg {
namespace {

constexpr double kTitleWidth = 180.0;  // of the title block, in millimetres
constexpr double kNorthWidth = 26.0;   // of the field of the north arrow
constexpr double kPadding = 2.0;       // between a line of a field and its text
constexpr double kRow = 10.0;          // the height of a row of the title block

std::string ScaleText(const Sheet& sheet) { return "1:" + Number(sheet.GetScale()); }

std::string Metres(double value) {
  std::string text = HeightText(value);
  return text + " m";
}

// A caption, and the text under it.
void AppendField(std::string& markup, const Point2& corner, std::string_view caption,
                 std::string_view text) {
  AppendText(markup, {corner.x + kPadding, corner.y + 3.2}, caption, {"small"});
  AppendText(markup, {corner.x + kPadding, corner.y + 7.6}, text, {});
}

std::string LossesText(const Building& building) {
  const std::size_t count = building.losses.size();
  if (count == 0) return {};
  return std::to_string(count) + (count == 1 ? " product of the model" : " products of the model") +
         " could not be read";
}

void AppendTitleBlock(std::string& markup, const Building& building, const SheetTitle& title,
                      const Plan& plan, const Sheet& sheet) {
  const PaperBox strip = sheet.Strip();
  const double left = strip.right - kTitleWidth;
  const double top = strip.top;
  constexpr double kColumn = kTitleWidth / 4.0;
  AppendLine(markup, {}, {left, top}, {left, strip.bottom});
  AppendLine(markup, {}, {left, top + 20.0}, {strip.right, top + 20.0});
  AppendLine(markup, {}, {left, top + 20.0 + kRow}, {strip.right, top + 20.0 + kRow});
  AppendText(markup, {left + kPadding, top + 3.2}, "Plan", {"small"});
  AppendText(markup, {left + kPadding, top + 10.0}, Shortened(title.storey, 50), {"large"});
  std::string subtitle =
      "Cut " + Number(plan.cut - plan.floor) + " m above the floor, at " + Metres(plan.cut);
  AppendText(markup, {left + kPadding, top + 16.5}, subtitle, {});
  AppendText(markup, {left + 2.0 * kColumn + kPadding, top + 16.5}, LossesText(building), {});
  const std::array<std::array<std::string, 2>, 4> fields = {{
      {"Scale", ScaleText(sheet) + " on " + std::string(sheet.GetPaper().name)},
      {"Floor", Metres(plan.floor)},
      {"Sheet", std::to_string(title.number) + " of " + std::to_string(title.count)},
      {"Schema", Shortened(building.schema, 20)},
  }};
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const double x = left + kColumn * static_cast<double>(i);
    if (i > 0) AppendLine(markup, {}, {x, top + 20.0}, {x, top + 20.0 + kRow});
    AppendField(markup, {x, top + 20.0}, fields[i][0], fields[i][1]);
  }
  const Point2 last(left, top + 20.0 + kRow);
  AppendField(markup, last, "Model", Shortened(title.model, 50));
  AppendLine(markup, {}, {left + 2.0 * kColumn, last.y}, {left + 2.0 * kColumn, strip.bottom});
  AppendField(markup, {left + 2.0 * kColumn, last.y}, "Made by",
              Shortened(building.application, 50));
}

// Five alternating parts of 10 mm each.
void AppendScaleBar(std::string& markup, const Sheet& sheet, const Point2& corner) {
  constexpr int kParts = 5;
  constexpr double kPart = 10.0;
  constexpr double kHeight = 1.5;
  for (int i = 0; i < kParts; ++i) {
    const double x = corner.x + kPart * i;
    const PaperBox box{x, corner.y, x + kPart, corner.y + kHeight};
    AppendBox(markup, i % 2 == 0 ? "solid" : "", box);
  }
  for (int i = 0; i <= kParts; ++i) {
    std::string text = Number(kPart * i * sheet.GetScale() / 1000.0);
    if (i == kParts) text += " m";
    AppendText(markup, {corner.x + kPart * i, corner.y - 1.0}, text, {"small centred"});
  }
  AppendBox(markup, {}, {corner.x, corner.y, corner.x + kPart * kParts, corner.y + kHeight});
}

// An arrow to true north. Its field is the last one before the title block.
void AppendNorth(std::string& markup, const Vector2& north, const Sheet& sheet) {
  const double length = Length(north);
  if (!(length > 0.0) || !std::isfinite(length)) return;
  const PaperBox strip = sheet.Strip();
  const double right = strip.right - kTitleWidth;
  const Point2 centre(right - 0.5 * kNorthWidth, 0.5 * (strip.top + strip.bottom));
  const Vector2 up(north.x / length, -north.y / length);
  const Vector2 side(-up.y, up.x);
  const auto at = [&](double along, double across) {
    const Point2 p = centre + up * along + side * across;
    return Number(p.x) + " " + Number(p.y);
  };
  AppendLine(markup, {}, {right - kNorthWidth, strip.top}, {right - kNorthWidth, strip.bottom});
  constexpr double kTip = 11.0;
  constexpr double kBack = 10.0;
  constexpr double kWing = 4.0;
  markup += "<g id=\"north\"><title>True north</title>";
  AppendPathElement(markup, {},
                    "M" + at(kTip, 0.0) + " " + at(-kBack, kWing) + " " + at(-0.6 * kBack, 0.0) +
                        " " + at(-kBack, -kWing) + "Z");
  AppendPathElement(
      markup, "solid",
      "M" + at(kTip, 0.0) + " " + at(-kBack, kWing) + " " + at(-0.6 * kBack, 0.0) + "Z");
  const Point2 letter = centre + up * (kTip + 3.2);
  AppendText(markup, {letter.x, letter.y + 1.0}, "N", {"centred"});
  markup += "</g>\n";
}

// A sample of a line or a hatch, and its meaning.
struct LegendRow {
  std::string_view cssClass;
  std::string_view text;
};

// The rows of the legend that the drawing uses.
std::vector<LegendRow> LinesOf(const PlanDrawing& drawing) {
  std::vector<LegendRow> rows;
  const auto add = [&](Look look, const LegendRow& row) {
    if (drawing.CountOf(look) > 0) rows.push_back(row);
  };
  add(Look::kCut, {"edge", "cut"});
  add(Look::kBelow, {"visible", "below the cut"});
  add(Look::kAbove, {"above", "above the cut"});
  add(Look::kHidden, {"hidden", "under the floor"});
  return rows;
}

std::vector<LegendRow> HatchesOf(const PlanDrawing& drawing) {
  static constexpr std::array<std::string_view, kHatchCount> kTexts = {
      "other material", "concrete", "masonry", "steel", "timber"};
  std::vector<LegendRow> rows;
  for (std::size_t i = 0; i < kHatchCount; ++i) {
    const auto hatch = static_cast<Hatch>(i);
    if (drawing.IsUsed(hatch)) rows.push_back({NameOf(hatch), kTexts[i]});
  }
  return rows;
}

void AppendLegend(std::string& markup, const PlanDrawing& drawing, const Sheet& sheet) {
  const PaperBox strip = sheet.Strip();
  constexpr double kSample = 12.0;
  constexpr double kColumn = 42.0;
  constexpr double kRowHeight = 5.0;
  double y = strip.top + 8.0;
  for (const LegendRow& row : LinesOf(drawing)) {
    const double x = strip.left + 4.0;
    AppendLine(markup, row.cssClass, {x, y - 0.8}, {x + kSample, y - 0.8});
    AppendText(markup, {x + kSample + kPadding, y}, row.text, {});
    y += kRowHeight;
  }
  y = strip.top + 8.0;
  for (const LegendRow& row : HatchesOf(drawing)) {
    const double x = strip.left + 4.0 + kColumn;
    const PaperBox box{x, y - 2.8, x + kSample, y + 0.8};
    AppendBox(markup, "fill " + std::string(row.cssClass), box);
    AppendBox(markup, {}, box);
    AppendText(markup, {x + kSample + kPadding, y}, row.text, {});
    y += kRowHeight;
  }
}

}  // namespace

std::string NameOf(const Plan& plan) {
  if (plan.storey == nullptr) return "Elements without a storey";
  if (!plan.storey->name.empty()) return plan.storey->name;
  return "Storey #" + std::to_string(plan.storey->id);
}

std::string DescriptionOf(const SheetTitle& title, const Plan& plan, const PlanDrawing& drawing,
                          const Sheet& sheet) {
  constexpr std::size_t kLongestName = 200;
  const auto count = [&](Look look) { return std::to_string(drawing.CountOf(look)); };
  return "Plan of " + Shortened(title.storey, kLongestName) + " of " +
         Shortened(title.model, kLongestName) + " at the scale " + ScaleText(sheet) + ", cut at " +
         Metres(plan.cut) + ". Elements that are cut: " + count(Look::kCut) +
         ", below the cut: " + count(Look::kBelow) + ", above it: " + count(Look::kAbove) +
         ", under the floor: " + count(Look::kHidden) + ".";
}

std::string FrameOf(const Building& building, const SheetTitle& title, const Plan& plan,
                    const PlanDrawing& drawing, const Sheet& sheet) {
  const PaperBox strip = sheet.Strip();
  std::string markup = "<g id=\"sheet\">\n";
  AppendBox(markup, "frame", sheet.Frame());
  AppendLine(markup, {}, {strip.left, strip.top}, {strip.right, strip.top});
  AppendLegend(markup, drawing, sheet);
  AppendScaleBar(markup, sheet, {strip.left + 112.0, strip.bottom - 8.0});
  if (building.trueNorth) AppendNorth(markup, *building.trueNorth, sheet);
  AppendTitleBlock(markup, building, title, plan, sheet);
  markup += "</g>\n";
  return markup;
}

}  // namespace KelIFC::exporting::svg
