#include "tools/kelifc/diff_format.h"

#include <unordered_map>

#include "tools/kelifc/building_json.h"
#include "tools/kelifc/text.h"
#include "tools/kelifc/text_table.h"

namespace command {
namespace {

using KelIFC::Building;
using KelIFC::BuildingElement;
using KelIFC::ElementChange;

double Degrees(double radians) { return radians * (180.0 / 3.14159265358979323846); }

/// A pair of an old and a new value; null if there is none.
template <class Pair>
void WritePair(JsonWriter& json, const char* key, const Pair& pair) {
  json.Key(key);
  if (!pair) return json.Null();
  json.BeginList();
  json.Value(pair->first);
  json.Value(pair->second);
  json.EndList();
}

void WriteChange(JsonWriter& json, const ElementChange& change) {
  json.BeginObject();
  json.Member("old", change.oldId);
  json.Member("new", change.newId);
  json.Member("matchedBy", TextOf(change.matchedBy));
  json.Member("moved", change.moved);
  json.Member("rotated", Degrees(change.rotated));
  WritePair(json, "profile", change.profile);
  WritePair(json, "length", change.length);
  json.EndObject();
}

using Elements = std::unordered_map<std::size_t, const BuildingElement*>;

Elements ById(const Building& building) {
  Elements elements;
  for (const BuildingElement& element : building.elements) elements[element.id] = &element;
  return elements;
}

std::string IdTable(const char* title, const std::vector<std::size_t>& ids,
                    const Elements& elements) {
  if (ids.empty()) return "";
  TextTable table({"id", "class", "name"}, {true});
  for (const std::size_t id : ids) {
    const BuildingElement& element = *elements.at(id);
    table.Add({std::to_string(id), element.className, Visible(element.name)});
  }
  return std::string("\n") + title + "\n" + table.ToText();
}

std::string ChangeTable(const std::vector<ElementChange>& changes, const Elements& elements) {
  if (changes.empty()) return "";
  TextTable table({"old", "new", "class", "name", "moved (mm)", "rotated (degrees)", "section",
                   "length (m)", "matched by"},
                  {true, true, false, false, true, true});
  for (const ElementChange& change : changes) {
    const BuildingElement& element = *elements.at(change.newId);
    const auto& section = change.profile;
    const auto& length = change.length;
    table.Add({std::to_string(change.oldId), std::to_string(change.newId), element.className,
               Visible(element.name), change.moved == 0.0 ? "" : Brief(1000.0 * change.moved),
               change.rotated == 0.0 ? "" : Brief(Degrees(change.rotated)),
               section ? Visible(section->first) + " -> " + Visible(section->second) : "",
               length ? Brief(length->first) + " -> " + Brief(length->second) : "",
               std::string(TextOf(change.matchedBy))});
  }
  return "\nChanged\n" + table.ToText();
}

}  // namespace

void WriteDifferenceJson(Output& output, const KelIFC::BuildingDifference& difference) {
  JsonWriter json(output);
  json.BeginObject();
  WriteIdsMember(json, "added", difference.added);
  WriteIdsMember(json, "removed", difference.removed);
  json.Key("changed");
  json.BeginList();
  for (const ElementChange& change : difference.changed) WriteChange(json, change);
  json.EndList();
  json.Member("same", difference.same);
  json.EndObject();
}

std::string DifferenceTable(const KelIFC::BuildingDifference& difference,
                            const Building& oldBuilding, const Building& newBuilding) {
  TextTable counts({"Added", std::to_string(difference.added.size())}, {false, true});
  counts.Add({"Removed", std::to_string(difference.removed.size())});
  counts.Add({"Changed", std::to_string(difference.changed.size())});
  counts.Add({"Same", std::to_string(difference.same)});
  const Elements elements = ById(newBuilding);
  return counts.ToText() + IdTable("Added", difference.added, elements) +
         IdTable("Removed", difference.removed, ById(oldBuilding)) +
         ChangeTable(difference.changed, elements);
}

}  // namespace command
