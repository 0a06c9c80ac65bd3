#include "export/view/description.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <utility>

#include "export/text.h"
#include "export/view/element_columns.h"
#include "export/view/json_text.h"

namespace KelIFC::exporting {
namespace {

constexpr std::size_t kVersion = 1;

void WriteNumbers(JsonText& json, std::initializer_list<double> numbers) {
  json.BeginList();
  for (const double number : numbers) json.Value(number);
  json.EndList();
}

void WritePoint(JsonText& json, const Point3& p) { WriteNumbers(json, {p.x, p.y, p.z}); }

void WriteOutline(JsonText& json, const Outline& outline) {
  json.BeginList();
  for (const Point2& point : outline) WriteNumbers(json, {point.x, point.y});
  json.EndList();
}

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
  json.Key("lengthUnit");
  json.BeginObject();
  json.Member("name", building.lengthUnit.name);
  json.Member("metres", building.lengthUnit.metres);
  json.EndObject();
  json.Key("trueNorth");
  building.trueNorth ? WriteNumbers(json, {building.trueNorth->x, building.trueNorth->y})
                     : json.Null();
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

void WriteStorey(JsonText& json, const BuildingStorey& storey) {
  json.BeginObject();
  json.Member("id", storey.id);
  json.Member("guid", storey.guid);
  json.Member("name", storey.name);
  json.Key("elevation");
  storey.hasElevation ? json.Value(storey.elevation) : json.Null();
  json.Member("height", storey.height);
  json.EndObject();
}

void WriteMaterial(JsonText& json, const BuildingMaterial& material) {
  json.BeginObject();
  json.Member("name", material.name);
  json.EndObject();
}

void WriteProfile(JsonText& json, const BuildingProfile& profile) {
  json.BeginObject();
  json.Member("name", profile.name);
  json.Member("shape", TextOf(profile.shape));
  json.Key("parameters");
  json.BeginObject();
  for (const ProfileParameter parameter : ParametersOf(profile)) {
    json.Member(TextOf(parameter), profile[parameter]);
  }
  json.EndObject();
  json.Key("outline");
  WriteOutline(json, profile.outline);
  json.ListMember("holes", profile.holes, WriteOutline);
  json.Member("area", profile.area);
  json.Key("designation");
  profile.designation.empty() ? json.Null() : json.Value(profile.designation);
  json.EndObject();
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
      json.Key("fill");
      opening.fill == 0 ? json.Null() : json.Value(opening.fill);
      json.EndObject();
    }
  }
  json.EndList();
}

void WriteLoss(JsonText& json, const BuildingLoss& loss) {
  json.BeginObject();
  json.Member("id", loss.id);
  json.Key("line");
  loss.line == 0 ? json.Null() : json.Value(loss.line);
  json.Member("class", loss.className);
  json.Member("guid", loss.guid);
  json.Member("name", loss.name);
  json.Member("reason", TextOf(loss.reason));
  json.Key("at");
  loss.at == 0 ? json.Null() : json.Value(loss.at);
  json.EndObject();
}

void WriteTotals(JsonText& json, const BuildingTotals& totals) {
  json.Key("totals");
  json.BeginObject();
  json.Member("products", totals.products);
  json.Member("members", totals.members);
  json.Member("surfaces", totals.surfaces);
  json.Member("bodies", totals.bodies);
  json.Member("decomposed", totals.decomposed);
  json.Member("lost", totals.lost);
  json.Member("approximate", totals.approximate);
  json.EndObject();
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
  json.ListMember("storeys", building.storeys, WriteStorey);
  json.ListMember("materials", building.materials, WriteMaterial);
  json.ListMember("profiles", building.profiles, WriteProfile);
  WriteElementColumns(json, building);
  WriteOpenings(json, building);
  json.ListMember("losses", building.losses, WriteLoss);
  WriteTotals(json, building.totals);
  WriteArrays(json, described.arrays);
  json.EndObject();
  return std::move(json.GetText());
}

}  // namespace KelIFC::exporting
