#include "tools/kelifc/building_json.h"

#include <initializer_list>

namespace command {
namespace {

void WriteNumbers(JsonWriter& json, std::initializer_list<double> numbers) {
  json.BeginList();
  for (const double number : numbers) json.Value(number);
  json.EndList();
}

}  // namespace

void WriteValue(JsonWriter& json, const KelIFC::Point2& p) { WriteNumbers(json, {p.x, p.y}); }
void WriteValue(JsonWriter& json, const KelIFC::Point3& p) { WriteNumbers(json, {p.x, p.y, p.z}); }
void WriteValue(JsonWriter& json, const KelIFC::Vector2& v) { WriteNumbers(json, {v.x, v.y}); }
void WriteValue(JsonWriter& json, const KelIFC::Vector3& v) { WriteNumbers(json, {v.x, v.y, v.z}); }

void WriteValue(JsonWriter& json, const KelIFC::BuildingBox& box) {
  json.BeginList();
  WriteValue(json, box.min);
  WriteValue(json, box.max);
  json.EndList();
}

void WriteValue(JsonWriter& json, const KelIFC::BuildingIndex& index) {
  index ? json.Value(*index) : json.Null();
}

void WriteValue(JsonWriter& json, const KelIFC::BuildingLoss& loss) {
  json.BeginObject();
  json.Member("id", loss.id);
  WriteIdMember(json, "line", loss.line);
  json.Member("class", loss.className);
  WriteTextMember(json, "guid", loss.guid);
  json.Member("name", loss.name);
  json.Member("reason", TextOf(loss.reason));
  WriteIdMember(json, "at", loss.at);
  json.EndObject();
}

void WriteIdMember(JsonWriter& json, const char* key, std::size_t id) {
  json.Key(key);
  id == 0 ? json.Null() : json.Value(id);
}

void WriteIdsMember(JsonWriter& json, const char* key, const std::vector<std::size_t>& ids) {
  json.Key(key);
  json.BeginList();
  for (const std::size_t id : ids) json.Value(id);
  json.EndList();
}

void WriteTextMember(JsonWriter& json, const char* key, const std::string& text) {
  json.Key(key);
  text.empty() ? json.Null() : json.Value(text);
}

}  // namespace command
