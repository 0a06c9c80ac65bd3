#ifndef TOOLS_KELIFC_BUILDING_JSON_H_
#define TOOLS_KELIFC_BUILDING_JSON_H_

#include <cstddef>
#include <string>
#include <vector>

#include "kelifc/kelifc.h"

#include "export/building_json.h"
#include "tools/kelifc/json_writer.h"

namespace command {

// Values of a building as JSON. The functions write one value, after its key.

void WriteValue(JsonWriter& json, const KelIFC::Point2& point);
void WriteValue(JsonWriter& json, const KelIFC::Point3& point);
void WriteValue(JsonWriter& json, const KelIFC::Vector2& vector);
void WriteValue(JsonWriter& json, const KelIFC::Vector3& vector);
void WriteValue(JsonWriter& json, const KelIFC::BuildingBox& box);
void WriteValue(JsonWriter& json, const KelIFC::BuildingLoss& loss);

/// An index; null if there is none.
void WriteValue(JsonWriter& json, const KelIFC::BuildingIndex& index);

/// A list of values, of points for example.
template <class Entry>
void WriteValue(JsonWriter& json, const std::vector<Entry>& entries) {
  json.BeginList();
  for (const Entry& entry : entries) WriteValue(json, entry);
  json.EndList();
}

/// A key with such a value.
template <class Anything>
void WriteMember(JsonWriter& json, const char* key, const Anything& value) {
  json.Key(key);
  WriteValue(json, value);
}

using KelIFC::exporting::WriteIdMember;
using KelIFC::exporting::WriteTextMember;

/// A list of instance numbers.
void WriteIdsMember(JsonWriter& json, const char* key, const std::vector<std::size_t>& ids);

/// An element, without the boundary of its body unless `hasBoundary` is set.
void WriteElement(JsonWriter& json, const KelIFC::BuildingElement& element, bool hasBoundary);

}  // namespace command

#endif  // TOOLS_KELIFC_BUILDING_JSON_H_
