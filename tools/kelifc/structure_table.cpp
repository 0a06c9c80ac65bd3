#include <algorithm>
#include <string>

#include "tools/kelifc/structure_format.h"
#include "tools/kelifc/text_table.h"

namespace command {
namespace {

std::string Place(const Point& point) {
  return Brief(point[0]) + " " + Brief(point[1]) + " " + Brief(point[2]);
}

/// The first two points of an element, and the number of the others.
std::string Places(const std::vector<Point>& points) {
  constexpr std::size_t kShown = 2;
  std::string text;
  for (std::size_t i = 0; i < std::min(points.size(), kShown); ++i) {
    text += (i == 0 ? "" : ", ") + Place(points[i]);
  }
  if (points.size() > kShown) text += ", and " + std::to_string(points.size() - kShown) + " more";
  return text;
}

std::string Listed(const char* what, const std::vector<Element>& parts) {
  if (parts.empty()) return "";
  std::string text = what;
  for (const Element& part : parts) text += (&part == parts.data() ? ": " : ", ") + part.name;
  return text;
}

std::string Details(const Element&) { return ""; }

std::string Details(const Beam& beam) {
  const Boundary& boundary = beam.boundary;
  if (boundary.points.empty()) return "";
  return "solid of " + std::to_string(boundary.points.size()) + " points, " +
         std::to_string(boundary.faces.size()) + " faces";
}

std::string Details(const Wall& wall) {
  const std::string windows = Listed("windows", wall.windows);
  const std::string doors = Listed("doors", wall.doors);
  return windows + (windows.empty() || doors.empty() ? "" : "; ") + doors;
}

std::string Details(const Plate& plate) { return Listed("holes", plate.holes); }

template <class Item>
std::string ElementTable(const std::string& title, const std::vector<Item>& items) {
  if (items.empty()) return "";
  TextTable table({"name", "storey", "section", "points (m)", ""}, {false, true});
  for (const Item& item : items) {
    table.Add({item.name, item.storey ? std::to_string(*item.storey) : "-", item.section,
               Places(item.points), Details(item)});
  }
  return "\n" + title + "\n" + table.ToText();
}

std::string StoreyTable(const std::vector<Storey>& storeys) {
  if (storeys.empty()) return "";
  TextTable table({"number", "name", "level", "height"}, {true, false, true, true});
  for (const Storey& storey : storeys) {
    table.Add(
        {std::to_string(storey.number), storey.name, Brief(storey.level), Brief(storey.height)});
  }
  return "\nStoreys (level and height in the unit of the file)\n" + table.ToText();
}

std::string SectionTable(const std::vector<Section>& sections) {
  if (sections.empty()) return "";
  TextTable table({"name", "kind", "sizes (m)"}, {false, true});
  for (const Section& section : sections) {
    std::string sizes;
    for (const auto& [name, size] : section.sizes) {
      sizes += (sizes.empty() ? "" : ", ") + (name + (" " + Brief(size)));
    }
    table.Add({section.name, std::to_string(section.kind), sizes});
  }
  return "\nSections\n" + table.ToText();
}

std::string Counts(const Structure& structure) {
  TextTable table({"Release", structure.release}, {false, true});
  const auto add = [&table](const char* what, const auto& items) {
    table.Add({what, std::to_string(items.size())});
  };
  add("Storeys", structure.storeys);
  add("Columns", structure.columns);
  add("Beams", structure.beams);
  add("Walls", structure.walls);
  add("Plates", structure.plates);
  add("Foots", structure.foots);
  add("Sections", structure.sections);
  return table.ToText();
}

}  // namespace

std::string StructureTable(const Structure& structure) {
  return Counts(structure) + StoreyTable(structure.storeys) +
         ElementTable("Columns", structure.columns) + ElementTable("Beams", structure.beams) +
         ElementTable("Walls", structure.walls) + ElementTable("Plates", structure.plates) +
         ElementTable("Foots", structure.foots) + SectionTable(structure.sections);
}

}  // namespace command
