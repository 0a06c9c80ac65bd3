#include <optional>
#include <unordered_map>

#include "tools/kelifc/csv.h"
#include "tools/kelifc/elements_format.h"

namespace command {
namespace {

using KelIFC::Building;
using KelIFC::BuildingElement;
using KelIFC::BuildingProfile;

using StoreyNames = std::unordered_map<std::size_t, std::string>;

constexpr const char* kHeading[] = {"id",          "class",       "guid",   "name",      "tag",
                                    "type",        "kind",        "storey", "material",  "profile",
                                    "designation", "length",      "area",   "thickness", "volume",
                                    "deviation",   "approximate", "partOf"};

const BuildingProfile* ProfileOf(const Building& building, const BuildingElement& element) {
  if (!element.member || element.member->profile >= building.profiles.size()) return nullptr;
  return &building.profiles[element.member->profile];
}

void AddNumber(CsvRow& row, const std::optional<double>& number) {
  number ? row.Add(*number) : row.AddEmpty();
}

/// Of a member the area of its profile, of a surface that of its region.
std::optional<double> AreaOf(const BuildingElement& element, const BuildingProfile* profile) {
  if (profile != nullptr) return profile->area;
  if (element.surface) return KelIFC::AreaOf(*element.surface);
  return std::nullopt;
}

std::optional<double> ThicknessOf(const BuildingElement& element) {
  if (!element.surface) return std::nullopt;
  return element.surface->thickness;
}

void AddTexts(CsvRow& row, const Building& building, const BuildingElement& element,
              const StoreyNames& storeys) {
  const bool hasMaterial = element.material && *element.material < building.materials.size();
  const BuildingProfile* const profile = ProfileOf(building, element);
  const auto storey = storeys.find(element.storey);
  for (const std::string* text :
       {&element.className, &element.guid, &element.name, &element.tag, &element.type}) {
    row.Add(*text);
  }
  row.Add(TextOf(element.kind));
  row.Add(storey == storeys.end() ? std::string() : storey->second);
  row.Add(hasMaterial ? building.materials[*element.material].name : std::string());
  row.Add(profile == nullptr ? std::string() : profile->name);
  row.Add(profile == nullptr ? std::string() : profile->designation);
}

}  // namespace

void WriteElementsCsv(Output& output, const Building& building, bool isRaw) {
  StoreyNames storeys;
  for (const KelIFC::BuildingStorey& storey : building.storeys) storeys[storey.id] = storey.name;
  CsvRow row(isRaw);
  for (const char* title : kHeading) row.Add(title);
  output.Write(row.Take());
  for (const BuildingElement& element : building.elements) {
    row.Add(element.id);
    AddTexts(row, building, element, storeys);
    AddNumber(row, LengthOf(element));
    AddNumber(row, AreaOf(element, ProfileOf(building, element)));
    AddNumber(row, ThicknessOf(element));
    row.Add(element.volume);
    row.Add(element.deviation);
    row.Add(element.isApproximate);
    element.partOf == 0 ? row.AddEmpty() : row.Add(element.partOf);
    output.Write(row.Take());
  }
}

}  // namespace command
