#include "export/saf/saf_writer.h"

#include <cmath>

namespace KelIFC::exporting::saf {
namespace {

constexpr double kLargestCoordinate = 1e9;  // in metres

// The class without "Ifc", and the instance number.
std::string FallbackName(const BuildingElement& element) {
  std::string_view name = element.className;
  if (name.starts_with("Ifc")) name.remove_prefix(3);
  return std::string(name) + ' ' + std::to_string(element.id);
}

}  // namespace

bool IsUsable(const Point3& point) {
  return std::abs(point.x) <= kLargestCoordinate && std::abs(point.y) <= kLargestCoordinate &&
         std::abs(point.z) <= kLargestCoordinate;
}

SafWriter::SafWriter(const Building& building, const ExportOptions& options, Workbook& workbook)
    : building(building),
      workbook(workbook),
      ids(building.projectGuid),
      nodes(options.nodeTolerance),
      materials(building.materials, workbook["StructuralMaterial"], ids),
      sections(building.profiles, materials, workbook, ids) {
  WriteStoreys();
}

void SafWriter::WriteStoreys() {
  Table& table = workbook["StructuralStorey"];
  NameList storeyNames;
  for (const BuildingStorey& storey : building.storeys) {
    const std::string name = storeyNames.Take(storey.name, "Storey " + std::to_string(storey.id));
    storeys.emplace(storey.id, name);
    if (!storey.hasElevation || !std::isfinite(storey.elevation) || !table.HasRoomFor(1)) {
      omissions.Add("storeys without an elevation");
      continue;
    }
    table.BeginRow();
    table.Set("Name", name);
    table.Set("Height level [m]", storey.elevation);
    table.Set("Id", ids.Take(storey.guid, "storey/" + name));
  }
  omissions.Add("texts shortened", storeyNames.GetShortened());
}

std::string_view SafWriter::LayerOf(const BuildingElement& element) const {
  const auto at = storeys.find(element.storey != 0 ? element.storey : element.storeyByHeight);
  return at == storeys.end() ? std::string_view() : at->second;
}

std::string SafWriter::TakeName(const BuildingElement& element) {
  return names.Take(element.name, FallbackName(element));
}

std::string SafWriter::TakeId(const BuildingElement& element, std::string_view name) {
  return ids.Take(element.guid, "element/" + std::string(name));
}

}  // namespace KelIFC::exporting::saf
