#include <cmath>
#include <unordered_map>

#include "tools/kelifc/elements_format.h"
#include "tools/kelifc/model_file.h"
#include "tools/kelifc/text.h"
#include "tools/kelifc/text_table.h"

namespace command {
namespace {

using KelIFC::Building;
using KelIFC::BuildingElement;
using KelIFC::BuildingProfile;

std::string Number(std::size_t number) { return std::to_string(number); }

std::string Counts(const std::string& file, const Building& building) {
  const KelIFC::BuildingTotals& totals = building.totals;
  TextTable table({"File", Visible(file)}, {false, true});
  table.Add({"Release", ReleaseText(building.release)});
  table.Add({"Products", Number(totals.products)});
  table.Add({"Members", Number(totals.members)});
  table.Add({"Surfaces", Number(totals.surfaces)});
  table.Add({"Bodies", Number(totals.bodies)});
  table.Add({"Decomposed", Number(totals.decomposed)});
  table.Add({"Lost", Number(totals.lost)});
  table.Add({"Approximate", Number(totals.approximate)});
  return table.ToText();
}

std::string StoreyTable(const Building& building) {
  if (building.storeys.empty()) return "";
  TextTable table({"id", "name", "elevation (m)", "height (m)"}, {true, false, true, true});
  for (const KelIFC::BuildingStorey& storey : building.storeys) {
    table.Add({Number(storey.id), Visible(storey.name),
               storey.hasElevation ? Brief(storey.elevation) : "-",
               storey.height ? Brief(*storey.height) : "-"});
  }
  return "\nStoreys\n" + table.ToText();
}

std::string ProfileText(const BuildingProfile& profile) {
  if (!profile.designation.empty()) return profile.designation;
  if (!profile.name.empty()) return Visible(profile.name);
  std::string text(TextOf(profile.shape));
  for (const KelIFC::ProfileParameter parameter : ParametersOf(profile)) {
    if (profile[parameter] == 0.0) continue;
    text += " " + std::string(TextOf(parameter)) + "=" + Brief(1000.0 * profile[parameter]);
  }
  return text;
}

/// In millimetres, to a thousandth.
std::string DeviationText(double metres) { return Brief(std::round(1e6 * metres) / 1000.0); }

/// The profile of a member with its sizes in millimetres, the thickness of a surface.
std::string SectionText(const Building& building, const BuildingElement& element) {
  if (element.member && element.member->profile < building.profiles.size()) {
    return ProfileText(building.profiles[element.member->profile]);
  }
  return element.surface ? Brief(element.surface->thickness) + " m" : "";
}

std::string ElementTable(const Building& building) {
  if (building.elements.empty()) return "";
  std::unordered_map<std::size_t, std::string> storeys;
  for (const auto& storey : building.storeys) storeys[storey.id] = Visible(storey.name);
  TextTable table({"id", "class", "name", "storey", "kind", "section", "length (m)", "volume (m3)",
                   "deviation (mm)", ""},
                  {true, false, false, false, false, false, true, true, true});
  for (const BuildingElement& element : building.elements) {
    const std::optional<double> length = LengthOf(element);
    table.Add({Number(element.id), element.className, Visible(element.name),
               storeys[element.storey], std::string(TextOf(element.kind)),
               SectionText(building, element), length ? Brief(*length) : "", Brief(element.volume),
               DeviationText(element.deviation), element.isApproximate ? "approximate" : ""});
  }
  return "\nElements\n" + table.ToText();
}

}  // namespace

std::string LossTable(const Building& building) {
  if (building.losses.empty()) return "";
  TextTable table({"id", "line", "class", "name", "reason", "at"},
                  {true, true, false, false, false, true});
  for (const KelIFC::BuildingLoss& loss : building.losses) {
    table.Add({Number(loss.id), loss.line == 0 ? "-" : Number(loss.line), loss.className,
               Visible(loss.name), std::string(TextOf(loss.reason)),
               loss.at == 0 ? "-" : Number(loss.at)});
  }
  return "\nLost\n" + table.ToText();
}

std::string ElementsTable(const std::string& file, const Building& building) {
  return Counts(file, building) + StoreyTable(building) + ElementTable(building) +
         LossTable(building);
}

}  // namespace command
