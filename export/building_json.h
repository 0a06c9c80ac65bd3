#ifndef EXPORT_BUILDING_JSON_H_
#define EXPORT_BUILDING_JSON_H_

#include <cstddef>
#include <initializer_list>
#include <string_view>

#include "kelifc/building/building.h"
#include "kelifc/building/element_enums.h"

namespace KelIFC::exporting {

// Parts of a building as JSON. `Json` is a writer with the functions BeginObject, EndObject,
// BeginList, EndList, Key, Value, Null and Member, such as JsonText.

template <class Json>
void WriteNumbers(Json& json, std::initializer_list<double> numbers) {
  json.BeginList();
  for (const double number : numbers) json.Value(number);
  json.EndList();
}

/// A text with its key; null if it is empty.
template <class Json>
void WriteTextMember(Json& json, std::string_view key, std::string_view text) {
  json.Key(key);
  text.empty() ? json.Null() : json.Value(text);
}

/// An instance number or a line with its key; null for 0.
template <class Json>
void WriteIdMember(Json& json, std::string_view key, std::size_t id) {
  json.Key(key);
  id == 0 ? json.Null() : json.Value(id);
}

template <class Json>
void WriteLengthUnitMember(Json& json, const Building& building) {
  json.Key("lengthUnit");
  json.BeginObject();
  json.Member("name", building.lengthUnit.name);
  json.Member("metres", building.lengthUnit.metres);
  json.EndObject();
}

template <class Json>
void WriteTrueNorthMember(Json& json, const Building& building) {
  json.Key("trueNorth");
  building.trueNorth ? WriteNumbers(json, {building.trueNorth->x, building.trueNorth->y})
                     : json.Null();
}

template <class Json>
void WriteStorey(Json& json, const BuildingStorey& storey) {
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

template <class Json>
void WriteMaterial(Json& json, const BuildingMaterial& material) {
  json.BeginObject();
  json.Member("name", material.name);
  json.EndObject();
}

template <class Json>
void WriteOutline(Json& json, const Outline& outline) {
  json.BeginList();
  for (const Point2& point : outline) WriteNumbers(json, {point.x, point.y});
  json.EndList();
}

template <class Json>
void WriteProfile(Json& json, const BuildingProfile& profile) {
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
  json.Key("holes");
  json.BeginList();
  for (const Outline& hole : profile.holes) WriteOutline(json, hole);
  json.EndList();
  json.Member("area", profile.area);
  json.Member("iy", profile.iy);
  json.Member("iz", profile.iz);
  json.Member("iyz", profile.iyz);
  WriteTextMember(json, "designation", profile.designation);
  json.EndObject();
}

template <class Json>
void WriteLoss(Json& json, const BuildingLoss& loss) {
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

template <class Json>
void WriteTotalsMember(Json& json, const BuildingTotals& totals) {
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

}  // namespace KelIFC::exporting

#endif  // EXPORT_BUILDING_JSON_H_
