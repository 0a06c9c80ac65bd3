#include "tools/kelifc/json.h"
#include "tools/kelifc/structure_format.h"

namespace command {
namespace {

Json StoreyOf(const Element& element) {
  return element.storey ? Json(*element.storey) : Json(nullptr);
}

/// The members that come first in every element. `Object` adds the members of each kind.
Json Identity(const Element& element) {
  return {{"name", element.name},
          {"guid", element.guid},
          {"section", element.section},
          {"storey", StoreyOf(element)}};
}

Json Object(const Storey& storey) {
  return {{"number", storey.number},
          {"name", storey.name},
          {"level", storey.level},
          {"height", storey.height}};
}

Json Object(const Element& element) {
  Json object = Identity(element);
  object["points"] = element.points;
  return object;
}

Json Parts(const std::vector<Element>& elements) {
  Json list = Json::array();
  for (const Element& element : elements) list.push_back(Object(element));
  return list;
}

Json Object(const Beam& beam) {
  Json object = Object(static_cast<const Element&>(beam));
  Json& brep = object["brep"];
  if (beam.boundary.points.empty()) return object;
  brep["points"] = beam.boundary.points;
  brep["faces"] = beam.boundary.faces;
  return object;
}

Json Object(const Wall& wall) {
  Json object = Object(static_cast<const Element&>(wall));
  object["closed"] = wall.closed;
  object["windows"] = Parts(wall.windows);
  object["doors"] = Parts(wall.doors);
  return object;
}

Json Object(const Plate& plate) {
  Json object = Object(static_cast<const Element&>(plate));
  object["holes"] = Parts(plate.holes);
  return object;
}

Json Object(const Foot& foot) {
  Json object = Identity(foot);
  object["location"] = foot.points.empty() ? Json(nullptr) : Json(foot.points.front());
  return object;
}

Json Object(const Section& section) {
  Json object = {{"name", section.name}, {"kind", section.kind}};
  for (const auto& [name, size] : section.sizes) object[name] = size;
  return object;
}

}  // namespace

std::string StructureJson(const std::string& file, const Structure& structure) {
  JsonText text;
  const auto list = [&text](const char* name, const auto& items) {
    text.AddList(name, items, [](const auto& item) { return Object(item); });
  };
  text.Add("file", file);
  text.Add("release", structure.release);
  list("storeys", structure.storeys);
  list("columns", structure.columns);
  list("beams", structure.beams);
  list("walls", structure.walls);
  list("plates", structure.plates);
  list("foots", structure.foots);
  list("sections", structure.sections);
  return text.Finish();
}

}  // namespace command
