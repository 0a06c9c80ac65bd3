#include "export/svg/style.h"

#include <array>
#include <cstddef>
#include <string_view>

#include "export/svg/element_form.h"
#include "export/svg/labels.h"
#include "export/svg/markup.h"

namespace KelIFC::exporting::svg {
namespace {

// The rules. $c, $v and $t stand for the widths of cut, visible and thin lines, $w and $h for the
// size of the paper, and $l for the size of labels; all in millimetres.
constexpr std::string_view kRules = R"(
@page { size: $wmm $hmm; margin: 0 }
path, line, rect { fill: none; stroke: #000; stroke-width: $t; stroke-linejoin: round }
text { font-family: sans-serif; font-size: 2.5px; fill: #000 }
.paper { fill: #fff; stroke: none }
.frame { stroke-width: 0.7 }
.edge { stroke-width: $c }
.fill { stroke: none; fill: url(#general) }
.concrete .fill, .fill.concrete { fill: url(#concrete) }
.masonry .fill, .fill.masonry { fill: url(#masonry) }
.timber .fill, .fill.timber { fill: url(#timber) }
.steel .fill, .fill.steel { fill: #000 }
.steel .edge { stroke-width: $v }
#slabs path, #lower path, .visible { stroke-width: $v }
#hidden path, .hidden { stroke: #555; stroke-dasharray: 1 0.7 }
#above path, #beams-above path, .slope, .above { stroke-width: $v; stroke-dasharray: 3 1.2 }
.cross, #slabs .cross { stroke-width: $t; stroke-dasharray: none }
.door .middle, .void .middle { stroke: none }
#texts text { font-size: $lpx; text-anchor: middle; paint-order: stroke; stroke: #fff; stroke-width: 0.6px; stroke-linejoin: round }
.large { font-size: 5px; font-weight: bold }
.small { font-size: 1.9px; fill: #333 }
.centred { text-anchor: middle }
.solid { fill: #000; stroke: none }
)";

// A line of a hatch across its square: its place, and the part of the square that it covers.
struct HatchLine {
  double x = 0.0;
  double share = 1.0;
};

// A hatch is a square that repeats, turned by an angle. Lengths are in millimetres.
struct HatchPattern {
  Hatch hatch;
  double size;
  double angle;  // in degrees, clockwise
  std::array<HatchLine, 2> lines;
};

constexpr HatchPattern kPatterns[] = {
    {Hatch::kGeneral, 2.5, 45.0, {{{0.6, 1.0}, {0.6, 1.0}}}},
    {Hatch::kConcrete, 2.4, 45.0, {{{0.6, 1.0}, {1.8, 0.6}}}},
    {Hatch::kMasonry, 1.2, 45.0, {{{0.6, 1.0}, {0.6, 1.0}}}},
    {Hatch::kTimber, 1.6, -45.0, {{{0.4, 1.0}, {0.9, 1.0}}}},
};

void AppendPattern(std::string& markup, const HatchPattern& pattern) {
  const std::string size = Number(pattern.size);
  markup.append("<pattern id=\"").append(NameOf(pattern.hatch)).append("\" width=\"").append(size);
  markup.append("\" height=\"").append(size).append("\" patternUnits=\"userSpaceOnUse\"");
  markup.append(" patternTransform=\"rotate(").append(Number(pattern.angle)).append(")\">");
  AppendBox(markup, "paper", {0.0, 0.0, pattern.size, pattern.size});
  for (const HatchLine& line : pattern.lines) {
    AppendLine(markup, {}, {line.x, 0.0}, {line.x, pattern.size * line.share});
  }
  markup += "</pattern>\n";
}

// The value of a variable of the rules.
double ValueOf(char variable, const Sheet& sheet) {
  switch (variable) {
    case 'c':
      return sheet.Widths().cut;
    case 'v':
      return sheet.Widths().visible;
    case 't':
      return sheet.Widths().thin;
    case 'w':
      return sheet.GetPaper().width;
    case 'h':
      return sheet.GetPaper().height;
    default:
      return kLabelSize;
  }
}

}  // namespace

std::string StyleOf(const Sheet& sheet) {
  std::string style = "<style>";
  for (std::size_t i = 0; i < kRules.size(); ++i) {
    if (kRules[i] == '$') {
      style += Number(ValueOf(kRules[++i], sheet));
    } else {
      style += kRules[i];
    }
  }
  style += "</style>\n<defs>\n";
  for (const HatchPattern& pattern : kPatterns) AppendPattern(style, pattern);
  style += "</defs>\n";
  return style;
}

}  // namespace KelIFC::exporting::svg
