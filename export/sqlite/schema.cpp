#include "export/sqlite/schema.h"

#include <array>

namespace KelIFC::exporting {
namespace {

struct SearchColumn {
  std::string_view table;
  std::string_view column;
};

constexpr SearchColumn kSearchColumns[] = {{"elements", "class"}, {"elements", "guid"}};

std::string Quoted(std::string_view name) { return '"' + std::string(name) + '"'; }

std::string_view SqlType(ColumnType type) {
  constexpr std::array<std::string_view, 4> kTypes = {"TEXT", "INTEGER", "REAL", "INTEGER"};
  return kTypes.at(static_cast<std::size_t>(type));
}

/// The definition of a column, without the comma after it.
std::string ColumnDefinition(const BuildingTable& table, std::size_t index) {
  const TableColumn& column = table.columns[index];
  std::string text = Quoted(column.name) + ' ' + std::string(SqlType(column.type));
  if (index < table.keyColumns) text += table.keyColumns == 1 ? " PRIMARY KEY" : " NOT NULL";
  if (!column.references.empty()) {
    const BuildingTable& target = *FindBuildingTable(column.references);
    text += " REFERENCES " + Quoted(target.name) + " (" + Quoted(target.columns[0].name) + ")";
  }
  return text;
}

std::string ColumnComment(const TableColumn& column) {
  const std::string unit = column.unit.empty() ? "" : " (" + std::string(column.unit) + ")";
  return " -- " + std::string(column.meaning) + unit + "\n";
}

/// Of a key of several columns: the clause that follows the columns. Otherwise empty.
std::string KeyClause(const BuildingTable& table) {
  if (table.keyColumns < 2) return "";
  std::string text = "  PRIMARY KEY (";
  for (std::size_t i = 0; i < table.keyColumns; ++i) {
    text += (i == 0 ? "" : ", ") + Quoted(table.columns[i].name);
  }
  return text + ")\n";
}

std::string IndexStatement(std::string_view table, std::string_view column) {
  return "CREATE INDEX " + Quoted(std::string(table) + '_' + std::string(column)) + " ON " +
         Quoted(table) + " (" + Quoted(column) + ")";
}

}  // namespace

// A profile with a designation is a rolled section of steel, for which the standards state the mass
// with 7850 kg/m3. The building knows no other density.
const std::vector<TakeoffView>& TakeoffViews() {
  static const std::vector<TakeoffView> views = {
      {"takeoff_profiles",
       "Members by profile and material: number, length (m), area of the profile (m2), volume "
       "(m3), and weight (kg) of profiles with a designation.",
       "SELECT e.profile AS profile, p.name AS name, p.designation AS designation,\n"
       "  p.shape AS shape, m.name AS material, count(*) AS members, sum(e.length) AS length,\n"
       "  p.area AS area, sum(e.volume) AS volume,\n"
       "  CASE WHEN p.designation IS NOT NULL THEN 7850.0 * sum(e.volume) END AS weight\n"
       "FROM elements e LEFT JOIN profiles p ON p.id = e.profile\n"
       "  LEFT JOIN materials m ON m.id = e.material\n"
       "WHERE e.kind = 'member' AND e.partOf IS NULL\n"
       "GROUP BY e.profile, e.material ORDER BY e.profile, e.material"},
      {"takeoff_thicknesses",
       "Surfaces by thickness (m, to a tenth of a millimetre), material and class: number, area "
       "(m2) and volume (m3). Openings are not subtracted.",
       "SELECT round(e.thickness, 4) AS thickness, m.name AS material, e.class AS class,\n"
       "  count(*) AS surfaces, sum(e.area) AS area, sum(e.volume) AS volume\n"
       "FROM elements e LEFT JOIN materials m ON m.id = e.material\n"
       "WHERE e.kind = 'surface' AND e.partOf IS NULL\n"
       "GROUP BY round(e.thickness, 4), e.material, e.class\n"
       "ORDER BY round(e.thickness, 4), e.material, e.class"},
      {"takeoff_storeys",
       "Elements by storey, class and kind: number, length (m), area of surfaces (m2) and volume "
       "(m3). The storey is null for elements without one.",
       "SELECT e.storey AS storey, s.name AS name, e.class AS class, e.kind AS kind,\n"
       "  count(*) AS elements, sum(e.length) AS length, sum(e.area) AS area,\n"
       "  sum(e.volume) AS volume\n"
       "FROM elements e LEFT JOIN storeys s ON s.id = e.storey\n"
       "WHERE e.partOf IS NULL\n"
       "GROUP BY e.storey, e.class, e.kind\n"
       "ORDER BY s.elevation, e.storey, e.class, e.kind"}};
  return views;
}

std::string CreateStatement(const BuildingTable& table) {
  std::string text =
      "CREATE TABLE " + Quoted(table.name) + " ( -- " + std::string(table.meaning) + "\n";
  const std::string key = KeyClause(table);
  for (std::size_t i = 0; i < table.columns.size(); ++i) {
    const bool isLast = key.empty() && i + 1 == table.columns.size();
    text += "  " + ColumnDefinition(table, i) + (isLast ? "" : ",");
    text += ColumnComment(table.columns[i]);
  }
  return text + key + (key.empty() ? ")" : ") WITHOUT ROWID");
}

std::string CreateStatement(const TakeoffView& view) {
  return "CREATE VIEW " + Quoted(view.name) + " AS -- " + std::string(view.meaning) + "\n" +
         std::string(view.query);
}

std::string InsertStatement(const BuildingTable& table) {
  std::string text = "INSERT INTO " + Quoted(table.name) + " VALUES (";
  for (std::size_t i = 0; i < table.columns.size(); ++i) text += i == 0 ? "?" : ", ?";
  return text + ")";
}

std::vector<std::string> IndexStatements() {
  std::vector<std::string> statements;
  for (const BuildingTable& table : BuildingTables()) {
    for (std::size_t i = table.keyColumns; i < table.columns.size(); ++i) {
      const TableColumn& column = table.columns[i];
      if (!column.references.empty()) {
        statements.push_back(IndexStatement(table.name, column.name));
      }
    }
  }
  for (const SearchColumn& search : kSearchColumns) {
    statements.push_back(IndexStatement(search.table, search.column));
  }
  return statements;
}

}  // namespace KelIFC::exporting
