#include "tools/kelifc/building_json.h"
#include "tools/kelifc/elements_format.h"
#include "tools/kelifc/model_file.h"

namespace command {
namespace {

using KelIFC::Building;
namespace exporting = KelIFC::exporting;

void WriteHead(JsonWriter& json, const std::string& file, const Building& building) {
  json.Member("file", file);
  json.Member("release", ReleaseText(building.release));
  json.Member("schema", building.schema);
  json.Member("application", building.application);
  WriteTextMember(json, "project", building.projectGuid);
  exporting::WriteTrueNorthMember(json, building);
  exporting::WriteLengthUnitMember(json, building);
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
  WriteList(json, "storeys", building.storeys, exporting::WriteStorey<JsonWriter>);
  WriteList(json, "materials", building.materials, exporting::WriteMaterial<JsonWriter>);
  WriteList(json, "profiles", building.profiles, exporting::WriteProfile<JsonWriter>);
  WriteList(json, "elements", building.elements,
            [hasBodies](JsonWriter& writer, const KelIFC::BuildingElement& element) {
              WriteElement(writer, element, hasBodies);
            });
  WriteList(json, "decomposed", building.decomposed,
            [](JsonWriter& writer, const KelIFC::BuildingWhole& whole) { writer.Value(whole.id); });
  WriteMember(json, "losses", building.losses);
  exporting::WriteTotalsMember(json, building.totals);
  json.EndObject();
}

}  // namespace command
