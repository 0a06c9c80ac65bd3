#include "export/svg/dimensions.h"

#include "export/svg/markup.h"
#include "export/text.h"

namespace KelIFC::exporting::svg {
namespace {

constexpr double kAway = 6.0;       // between what is drawn and the dimension line, in millimetres
constexpr double kOvershoot = 1.5;  // of the extension lines beyond the dimension line
constexpr double kGap = 2.0;        // between what is drawn and the extension lines
constexpr double kTick = 1.2;       // half of a stroke at the end of a dimension line
constexpr double kTextGap = 0.8;    // between the dimension line and its text

// A text of the length in the building of a length on the paper.
std::string LengthText(const Sheet& sheet, double onPaper) {
  std::string text;
  AppendRounded(text, onPaper * sheet.GetScale(), 0);
  return text;
}

void AppendTick(std::string& markup, const Point2& at) {
  AppendLine(markup, "visible", {at.x - kTick, at.y + kTick}, {at.x + kTick, at.y - kTick});
}

void AppendWidth(std::string& markup, const Sheet& sheet, const PaperBox& measured, double y) {
  for (const double x : {measured.left, measured.right}) {
    AppendLine(markup, {}, {x, y - kAway + kGap}, {x, y + kOvershoot});
    AppendTick(markup, {x, y});
  }
  AppendLine(markup, {}, {measured.left, y}, {measured.right, y});
  AppendText(markup, {0.5 * (measured.left + measured.right), y - kTextGap},
             LengthText(sheet, measured.right - measured.left), {"centred", 0.0});
}

void AppendDepth(std::string& markup, const Sheet& sheet, const PaperBox& measured, double x) {
  for (const double y : {measured.top, measured.bottom}) {
    AppendLine(markup, {}, {x - kOvershoot, y}, {x + kAway - kGap, y});
    AppendTick(markup, {x, y});
  }
  AppendLine(markup, {}, {x, measured.top}, {x, measured.bottom});
  AppendText(markup, {x - kTextGap, 0.5 * (measured.top + measured.bottom)},
             LengthText(sheet, measured.bottom - measured.top), {"centred", -90.0});
}

}  // namespace

void AppendDimensions(std::string& markup, const Sheet& sheet, const PaperBox& measured,
                      const PaperBox& drawn) {
  constexpr double kLeastShare = 0.5;
  const double width = measured.right - measured.left;
  const double depth = measured.bottom - measured.top;
  if (!(width > 0.0) || width < kLeastShare * (drawn.right - drawn.left)) return;
  if (!(depth > 0.0) || depth < kLeastShare * (drawn.bottom - drawn.top)) return;
  markup += "<g id=\"dimensions\">\n";
  AppendWidth(markup, sheet, measured, drawn.bottom + kAway);
  AppendDepth(markup, sheet, measured, drawn.left - kAway);
  markup += "</g>\n";
}

}  // namespace KelIFC::exporting::svg
