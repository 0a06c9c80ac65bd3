#include "export/view/description.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "export/building_json.h"
#include "export/text.h"
#include "export/view/element_columns.h"
#include "export/view/json_text.h"

namespace KelIFC::exporting {
namespace {

constexpr std::size_t kVersion = 1;

void WritePoint(JsonText& json, const Point3& p) { WriteNumbers(json, {p.x, p.y, p.z}); }

bool IsFinite(const BuildingBox& box) {
  return std::isfinite(box.min.x) && std::isfinite(box.min.y) && std::isfinite(box.min.z) &&
         std::isfinite(box.max.x) && std::isfinite(box.max.y) && std::isfinite(box.max.z);
}

BuildingBox BoxOf(const Building& building) {
  BuildingBox all;
  for (const BuildingElement& element : building.elements) {
    const BuildingBox& box = element.box;
    if (box.IsEmpty() || !IsFinite(box)) continue;
    all.min = {std::min(all.min.x, box.min.x), std::min(all.min.y, box.min.y),
               std::min(all.min.z, box.min.z)};
    all.max = {std::max(all.max.x, box.max.x), std::max(all.max.y, box.max.y),
               std::max(all.max.z, box.max.z)};
  }
  return all;
}

void WriteHead(JsonText& json, const DescribedBuilding& described) {
  const Building& building = described.building;
  json.Member("version", kVersion);
  json.Member("source", described.source);
  json.Member("release", ReleaseText(building.release));
  json.Member("schema", building.schema);
  json.Member("application", building.application);
  WriteLengthUnitMember(json, building);
  WriteTrueNorthMember(json, building);
  json.Key("origin");
  WritePoint(json, described.origin);
  json.Key("box");
  const BuildingBox box = BoxOf(building);
  if (box.IsEmpty()) return json.Null();
  json.BeginList();
  WritePoint(json, box.min);
  WritePoint(json, box.max);
  json.EndList();
}

void WriteOpenings(JsonText& json, const Building& building) {
  json.Key("openings");
  json.BeginList();
  for (std::size_t i = 0; i < building.elements.size(); i++) {
    for (const BuildingOpening& opening : building.elements[i].openings) {
      json.BeginObject();
      json.Member("element", i);
      json.Member("id", opening.id);
      json.Member("kind", TextOf(opening.kind));
      WriteIdMember(json, "fill", opening.fill);
      json.EndObject();
    }
  }
  json.EndList();
}

void WriteArrays(JsonText& json, const std::vector<ArrayPlace>& arrays) {
  json.Key("arrays");
  json.BeginObject();
  for (const ArrayPlace& array : arrays) {
    json.Key(array.name);
    json.BeginObject();
    json.Member("type", array.type);
    json.Member("offset", array.offset);
    json.Member("count", array.count);
    json.EndObject();
  }
  json.EndObject();
}

}  // namespace

std::string DescriptionOf(const DescribedBuilding& described) {
  const Building& building = described.building;
  JsonText json;
  json.BeginObject();
  WriteHead(json, described);
  json.ListMember("storeys", building.storeys, WriteStorey<JsonText>);
  json.ListMember("materials", building.materials, WriteMaterial<JsonText>);
  json.ListMember("profiles", building.profiles, WriteProfile<JsonText>);
  WriteElementColumns(json, building);
  WriteOpenings(json, building);
  json.ListMember("losses", building.losses, WriteLoss<JsonText>);
  WriteTotalsMember(json, building.totals);
  WriteArrays(json, described.arrays);
  json.EndObject();
  return std::move(json.GetText());
}

}  // namespace KelIFC::exporting
