#include "tools/kelifc/building_json.h"

namespace command {

using KelIFC::exporting::WriteNumbers;

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
  KelIFC::exporting::WriteLoss(json, loss);
}

void WriteIdsMember(JsonWriter& json, const char* key, const std::vector<std::size_t>& ids) {
  json.Key(key);
  json.BeginList();
  for (const std::size_t id : ids) json.Value(id);
  json.EndList();
}

}  // namespace command
