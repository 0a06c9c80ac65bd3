#include "kelifc/kelifc.h"

#include "tools/kelifc/json_writer.h"
#include "tools/kelifc/structure_collections.h"
#include "tools/kelifc/structure_format.h"

namespace command {
namespace {

void WriteItem(JsonWriter& json, const Point& point) {
  json.BeginList();
  for (const double coordinate : point) json.Value(coordinate);
  json.EndList();
}

/// A list, each item of which is the result of `read` for an item of `items`.
template <class Items, class Read>
void WriteListOf(JsonWriter& json, const char* key, const Items& items, Read read);

template <class Item>
void WriteList(JsonWriter& json, const char* key, const std::vector<Item>& items) {
  WriteListOf(json, key, items, [](const Item& item) -> const Item& { return item; });
}

/// The members that come first in every element. The functions below add those of each kind.
void WriteIdentity(JsonWriter& json, const Element& element) {
  json.Member("name", element.name);
  json.Member("guid", element.guid);
  json.Member("section", element.section);
  json.Key("storey");
  element.storey ? json.Value(*element.storey) : json.Null();
}

void WriteElement(JsonWriter& json, const Element& element) {
  WriteIdentity(json, element);
  WriteList(json, "points", element.points);
}

void WriteItem(JsonWriter& json, const Storey& storey) {
  json.BeginObject();
  json.Member("number", storey.number);
  json.Member("name", storey.name);
  json.Member("level", storey.level);
  json.Member("height", storey.height);
  json.EndObject();
}

void WriteItem(JsonWriter& json, const Element& element) {
  json.BeginObject();
  WriteElement(json, element);
  json.EndObject();
}

void WriteItem(JsonWriter& json, const std::vector<long>& face) {
  json.BeginList();
  for (const long number : face) json.Value(number);
  json.EndList();
}

void WriteItem(JsonWriter& json, const Beam& beam) {
  json.BeginObject();
  WriteElement(json, beam);
  json.Key("brep");
  if (beam.boundary.points.empty()) {
    json.Null();
  } else {
    json.BeginObject();
    WriteList(json, "points", beam.boundary.points);
    WriteList(json, "faces", beam.boundary.faces);
    json.EndObject();
  }
  json.EndObject();
}

void WriteItem(JsonWriter& json, const Wall& wall) {
  json.BeginObject();
  WriteElement(json, wall);
  json.Member("closed", wall.closed);
  WriteList(json, "windows", wall.windows);
  WriteList(json, "doors", wall.doors);
  json.EndObject();
}

void WriteItem(JsonWriter& json, const Plate& plate) {
  json.BeginObject();
  WriteElement(json, plate);
  WriteList(json, "holes", plate.holes);
  json.EndObject();
}

void WriteItem(JsonWriter& json, const Foot& foot) {
  json.BeginObject();
  WriteIdentity(json, foot);
  json.Key("location");
  foot.points.empty() ? json.Null() : WriteItem(json, foot.points.front());
  json.EndObject();
}

void WriteItem(JsonWriter& json, const Section& section) {
  json.BeginObject();
  json.Member("name", section.name);
  json.Member("kind", section.kind);
  for (const auto& [name, size] : section.sizes) json.Member(name, size);
  json.EndObject();
}

template <class Items, class Read>
void WriteListOf(JsonWriter& json, const char* key, const Items& items, Read read) {
  json.Key(key);
  json.BeginList();
  for (const auto& item : items) WriteItem(json, read(item));
  json.EndList();
}

void BeginStructure(JsonWriter& json, const std::string& file, const std::string& release) {
  json.BeginObject();
  json.Member("file", file);
  json.Member("release", release);
}

}  // namespace

std::string StructureJson(const std::string& file, const Structure& structure) {
  std::string text;
  Output output(text);
  JsonWriter json(output);
  BeginStructure(json, file, structure.release);
  VisitCollections([&](const char* key, auto&& /*getter*/, auto&& /*read*/, auto list) {
    WriteList(json, key, structure.*list);
  });
  json.EndObject();
  output.Close();
  return text;
}

void WriteStructureJson(Output& output, const std::string& file, const std::string& release,
                        const KelIFC::ComPtr<IGeoStructure>& structure) {
  JsonWriter json(output);
  BeginStructure(json, file, release);
  VisitCollections([&](const char* key, auto getter, auto read, auto&& /*list*/) {
    WriteListOf(json, key, KelIFC::Items(structure, getter), read);
  });
  json.EndObject();
}

}  // namespace command
