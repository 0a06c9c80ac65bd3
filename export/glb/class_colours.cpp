#include "export/glb/class_colours.h"

#include <algorithm>
#include <array>

namespace KelIFC::exporting {
namespace {

struct ClassColour {
  std::string_view name;
  LinearColour colour;
};

constexpr LinearColour kWall = {0.62, 0.57, 0.48};
constexpr LinearColour kSlab = {0.45, 0.48, 0.50};
constexpr LinearColour kStair = {0.40, 0.30, 0.50};
constexpr LinearColour kOther = {0.50, 0.50, 0.50};

constexpr std::array<ClassColour, 14> kColours = {{
    {"IfcBeam", {0.08, 0.25, 0.55}},
    {"IfcColumn", {0.55, 0.10, 0.06}},
    {"IfcFooting", {0.25, 0.21, 0.16}},
    {"IfcMember", {0.06, 0.38, 0.32}},
    {"IfcPile", {0.19, 0.15, 0.11}},
    {"IfcPlate", {0.30, 0.45, 0.12}},
    {"IfcRamp", kStair},
    {"IfcRampFlight", kStair},
    {"IfcRoof", {0.45, 0.16, 0.08}},
    {"IfcSlab", kSlab},
    {"IfcStair", kStair},
    {"IfcStairFlight", kStair},
    {"IfcWall", kWall},
    {"IfcWallStandardCase", kWall},
}};

}  // namespace

LinearColour ColourOfClass(std::string_view className) {
  const auto* const at =
      std::find_if(kColours.begin(), kColours.end(),
                   [&](const ClassColour& colour) { return colour.name == className; });
  return at == kColours.end() ? kOther : at->colour;
}

}  // namespace KelIFC::exporting
