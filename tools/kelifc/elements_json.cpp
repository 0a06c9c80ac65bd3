#include "tools/kelifc/building_json.h"
#include "tools/kelifc/elements_format.h"
#include "tools/kelifc/model_file.h"

namespace command {
namespace {

using KelIFC::Building;

void WriteHead(JsonWriter& json, const std::string& file, const Building& building) {
  json.Member("file", file);
  json.Member("release", ReleaseText(building.release));
  json.Member("schema", building.schema);
  json.Member("application", building.application);
  WriteTextMember(json, "project", building.projectGuid);
  json.Key("trueNorth");
  building.trueNorth ? WriteValue(json, *building.trueNorth) : json.Null();
  json.Key("lengthUnit");
  json.BeginObject();
  json.Member("name", building.lengthUnit.name);
  json.Member("metres", building.lengthUnit.metres);
  json.EndObject();
}

void WriteStorey(JsonWriter& json, const KelIFC::BuildingStorey& storey) {
  json.BeginObject();
  json.Member("id", storey.id);
  WriteTextMember(json, "guid", storey.guid);
  json.Member("name", storey.name);
  json.Key("elevation");
  storey.hasElevation ? json.Value(storey.elevation) : json.Null();
  json.Key("height");
  storey.height ? json.Value(*storey.height) : json.Null();
  json.EndObject();
}

void WriteProfile(JsonWriter& json, const KelIFC::BuildingProfile& profile) {
  json.BeginObject();
  json.Member("name", profile.name);
  json.Member("shape", TextOf(profile.shape));
  json.Key("parameters");
  json.BeginObject();
  for (const KelIFC::ProfileParameter parameter : ParametersOf(profile)) {
    json.Member(TextOf(parameter), profile[parameter]);
  }
  json.EndObject();
  WriteMember(json, "outline", profile.outline);
  WriteMember(json, "holes", profile.holes);
  json.Member("area", profile.area);
  json.Member("iy", profile.iy);
  json.Member("iz", profile.iz);
  json.Member("iyz", profile.iyz);
  WriteTextMember(json, "designation", profile.designation);
  json.EndObject();
}

void WriteMaterial(JsonWriter& json, const KelIFC::BuildingMaterial& material) {
  json.BeginObject();
  json.Member("name", material.name);
  json.EndObject();
}

void WriteTotals(JsonWriter& json, const KelIFC::BuildingTotals& totals) {
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

/// A list, each entry of which `write` writes.
template <class Entry, class Write>
void WriteList(JsonWriter& json, const char* key, const std::vector<Entry>& entries, Write write) {
  json.Key(key);
  json.BeginList();
  for (const Entry& entry : entries) write(json, entry);
  json.EndList();
}

}  // namespace

void WriteElementsJson(Output& output, const std::string& file, const Building& building,
                       bool hasBodies) {
  JsonWriter json(output);
  json.BeginObject();
  WriteHead(json, file, building);
  WriteList(json, "storeys", building.storeys, WriteStorey);
  WriteList(json, "materials", building.materials, WriteMaterial);
  WriteList(json, "profiles", building.profiles, WriteProfile);
  WriteList(json, "elements", building.elements,
            [hasBodies](JsonWriter& writer, const KelIFC::BuildingElement& element) {
              WriteElement(writer, element, hasBodies);
            });
  WriteList(json, "decomposed", building.decomposed,
            [](JsonWriter& writer, const KelIFC::BuildingWhole& whole) { writer.Value(whole.id); });
  WriteMember(json, "losses", building.losses);
  WriteTotals(json, building.totals);
  json.EndObject();
}

}  // namespace command
