// The tables of the model, of its storeys, materials and profiles, and of what could not be read.

#include <array>

#include "export/tables/table_list.h"
#include "export/tables/table_maker.h"
#include "export/text.h"

namespace KelIFC::exporting {
namespace {

using ProfileItem = Indexed<BuildingProfile>;

/// Calls `function` with the entries of a list of the building, and their indices.
template <class Entry>
auto EachIndexed(std::vector<Entry> Building::*list) {
  return [list](const TableSource& source,
                const std::function<void(const Indexed<Entry>&)>& function) {
    std::size_t index = 0;
    for (const Entry& entry : source.building.*list) function({index++, entry});
  };
}

template <class Entry>
auto Each(std::vector<Entry> Building::*list) {
  return [list](const TableSource& source, const std::function<void(const Entry&)>& function) {
    for (const Entry& entry : source.building.*list) function(entry);
  };
}

/// The unit and the meaning of a parameter of a profile.
struct ParameterText {
  std::string_view unit;
  std::string_view meaning;
};

/// By ProfileParameter.
constexpr std::array<ParameterText, kProfileParameterCount> kParameterTexts = {{
    {"m", "height"},
    {"m", "width; of a trapezium at the bottom, of an asymmetric I of the bottom flange"},
    {"m", "width of a trapezium at the top, or of the top flange of an asymmetric I"},
    {"m", "outside diameter"},
    {"m", "thickness of the wall, or of the legs of an L"},
    {"m", "thickness of the web"},
    {"m", "thickness of the flanges; of an asymmetric I of the bottom flange"},
    {"m", "thickness of the top flange of an asymmetric I"},
    {"m", "outside length of the lips of a C"},
    {"m", "radius of the fillets; of rectangles outside, of a C inside"},
    {"m", "radius of the edges; of hollow rectangles inside, of an asymmetric I at the top"},
    {"rad", "angle between the inner and the outer faces of the flanges or legs"},
    {"m", "of a trapezium, from the left end of the bottom to that of the top"},
}};

std::optional<double> ParameterOf(const BuildingProfile& profile, ProfileParameter parameter) {
  for (const ProfileParameter own : ParametersOf(profile)) {
    if (own == parameter) return profile[parameter];
  }
  return std::nullopt;
}

void AppendRing(std::string& text, const Outline& outline) {
  const auto Append = [&text](const Point2& point) {
    AppendNumber(text, point.x);
    text += ' ';
    AppendNumber(text, point.y);
  };
  text += '(';
  for (const Point2& point : outline) {
    Append(point);
    text += ", ";
  }
  Append(outline.front());
  text += ')';
}

/// The outline and the holes as a polygon in well-known text. A ring ends with its first point.
std::string PolygonText(const BuildingProfile& profile) {
  if (profile.outline.empty()) return "";
  std::string text = "POLYGON (";
  AppendRing(text, profile.outline);
  for (const Outline& hole : profile.holes) {
    if (hole.empty()) continue;
    text += ", ";
    AppendRing(text, hole);
  }
  return text + ")";
}

TableMaker<TableSource>& AddTotals(TableMaker<TableSource>& maker) {
  struct Total {
    std::string_view name;
    std::string_view meaning;
    std::size_t BuildingTotals::*count;
  };
  constexpr Total kTotals[] = {
      {"products", "number of all products", &BuildingTotals::products},
      {"members", "number of elements of the kind member", &BuildingTotals::members},
      {"surfaces", "number of elements of the kind surface", &BuildingTotals::surfaces},
      {"bodies", "number of elements of the kind body", &BuildingTotals::bodies},
      {"decomposed", "number of products without a body that their parts stand for",
       &BuildingTotals::decomposed},
      {"lost", "number of products that could not be read", &BuildingTotals::lost},
      {"approximate", "number of elements that are approximate", &BuildingTotals::approximate}};
  for (const Total& total : kTotals) {
    maker.Integer(total.name, total.meaning,
                  [count = total.count](const TableSource& s) { return s.building.totals.*count; });
  }
  return maker;
}

}  // namespace

BuildingTable ModelTable() {
  using Item = TableSource;
  TableMaker<Item> maker("model", 0, "The model. The table has one row.");
  maker.Text("file", "path of the model, as the user gave it", &Item::file)
      .Text("release", "release of the schema: 2x, 2x2 or 2x3",
            [](const Item& s) { return ReleaseText(s.building.release); })
      .Text("schema", "schema as the file names it",
            [](const Item& s) -> std::string_view { return s.building.schema; })
      .Text("application", "full name of the application that wrote the model",
            [](const Item& s) -> std::string_view { return s.building.application; })
      .Text("project", "GlobalId of the project",
            [](const Item& s) -> std::string_view { return s.building.projectGuid; })
      .Real("trueNorthX", "", "x of the unit vector to true north",
            [](const Item& s) -> std::optional<double> {
              if (!s.building.trueNorth) return std::nullopt;
              return s.building.trueNorth->x;
            })
      .Real("trueNorthY", "", "y of the unit vector to true north",
            [](const Item& s) -> std::optional<double> {
              if (!s.building.trueNorth) return std::nullopt;
              return s.building.trueNorth->y;
            })
      .Text("lengthUnit", "unit of length of the file; the tables are in metres",
            [](const Item& s) -> std::string_view { return s.building.lengthUnit.name; })
      .Real("lengthUnitMetres", "m", "length of one unit of the file",
            [](const Item& s) { return s.building.lengthUnit.metres; });
  return AddTotals(maker).Make(
      [](const TableSource& source, const std::function<void(const Item&)>& function) {
        function(source);
      });
}

BuildingTable StoreyTable() {
  using Item = BuildingStorey;
  return TableMaker<Item>("storeys", 1, "A storey of the building, by elevation.")
      .Integer("id", "instance number of the storey", &Item::id)
      .Text("guid", "GlobalId: the 22 characters of the file", &Item::guid)
      .Text("name", "name of the storey", &Item::name)
      .Real("elevation", "m", "world z of the floor",
            [](const Item& s) {
              return s.hasElevation ? std::optional<double>(s.elevation) : std::nullopt;
            })
      .Real("height", "m", "distance to the next higher storey", &Item::height)
      .Make(Each(&Building::storeys));
}

BuildingTable MaterialTable() {
  using Item = Indexed<BuildingMaterial>;
  return TableMaker<Item>("materials", 1, "A material that an element or a layer uses.")
      .Integer("id", "number of the material, from 0", &Item::index)
      .Text("name", "name of the material",
            [](const Item& m) -> std::string_view { return m.entry.name; })
      .Make(EachIndexed(&Building::materials));
}

BuildingTable ProfileTable() {
  TableMaker<ProfileItem> maker("profiles", 1,
                                "A cross-section of members, with y to the right and z upwards.");
  maker.Integer("id", "number of the profile, from 0", &ProfileItem::index)
      .Text("name", "name of the profile in the file",
            [](const ProfileItem& p) -> std::string_view { return p.entry.name; })
      .Text("shape",
            "shape, such as I or hollow-circle; arbitrary if only the outline describes it",
            [](const ProfileItem& p) { return TextOf(p.entry.shape); })
      .Text("designation", "European steel section with these sizes, such as HEB220",
            [](const ProfileItem& p) -> std::string_view { return p.entry.designation; })
      .Boolean("nameContradicts", "whether the name is a section with other sizes",
               [](const ProfileItem& p) { return p.entry.nameContradicts; })
      .Real("area", "m2", "area without the holes",
            [](const ProfileItem& p) { return p.entry.area; })
      .Real("iy", "m4", "second moment of area about y",
            [](const ProfileItem& p) { return p.entry.iy; })
      .Real("iz", "m4", "second moment of area about z",
            [](const ProfileItem& p) { return p.entry.iz; })
      .Real("iyz", "m4", "product moment of area",
            [](const ProfileItem& p) { return p.entry.iyz; });
  for (std::size_t i = 0; i < kProfileParameterCount; ++i) {
    const auto parameter = static_cast<ProfileParameter>(i);
    maker.Real(TextOf(parameter), kParameterTexts[i].unit, kParameterTexts[i].meaning,
               [parameter](const ProfileItem& p) { return ParameterOf(p.entry, parameter); });
  }
  return maker
      .MadeText("outline",
                "outline and holes in y and z, in metres, as a polygon in well-known text; the "
                "origin is the centroid",
                [](const ProfileItem& p) { return PolygonText(p.entry); })
      .Make(EachIndexed(&Building::profiles));
}

BuildingTable LossTable() {
  using Item = BuildingLoss;
  return TableMaker<Item>("losses", 1, "A product that could not be read.")
      .Integer("id", "instance number of the product", &Item::id)
      .Id("line", "line of the product in the file, from 1", &Item::line)
      .Text("class", "entity, such as IfcColumn", &Item::className)
      .Text("guid", "GlobalId: the 22 characters of the file", &Item::guid)
      .Text("name", "name of the product", &Item::name)
      .Text("reason", "why the product could not be read, such as no-representation",
            [](const Item& l) { return TextOf(l.reason); })
      .Id("at", "instance number of the instance at fault", &Item::at)
      .Make(Each(&Building::losses));
}

}  // namespace KelIFC::exporting
