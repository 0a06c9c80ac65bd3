#ifndef EXPORT_TABLES_TABLES_H_
#define EXPORT_TABLES_TABLES_H_

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <variant>
#include <vector>

#include "kelifc/building/building.h"

namespace KelIFC {

// A building as tables, for formats and hosts that think in rows and columns. All tables, their
// columns and what they hold are defined here once; docs/exports.md lists them.

/// What the cells of a column hold.
enum class ColumnType : std::uint8_t { kText, kInteger, kReal, kBoolean };

/// A cell of a row. std::monostate means that the building has no such value (null). A text is
/// well-formed UTF-8 without the character U+0000 and is never empty. A number is finite.
using TableCell = std::variant<std::monostate, std::string_view, std::int64_t, double, bool>;

/// A column of a table.
struct TableColumn {
  std::string_view name;             ///< such as "storeyByHeight"
  ColumnType type;                   ///< of the cells that are not null
  std::string_view unit;             ///< "m", "m2", "m3", "m4" or "rad"; empty without a unit
  std::string_view meaning;          ///< what the column holds, for a person
  std::string_view references = {};  ///< the table whose key the cells hold; empty if none
};

/// What the tables are made from. It holds references.
struct TableSource {
  const Building& building;
  std::string_view file;  ///< the path of the model as the user gave it
};

/// Receives the cells of a row, one for each column. Texts live until the function returns.
using RowFunction = std::function<void(const std::vector<TableCell>&)>;

/// A table of a building.
struct BuildingTable {
  std::string_view name;     ///< such as "axis_points"
  std::string_view meaning;  ///< what a row is, for a person

  /// How many of the first columns together identify a row; their cells are never null. 0 for a
  /// table with one row. A column of another table refers to a key of one column.
  std::size_t keyColumns = 0;
  std::vector<TableColumn> columns;

  /// Calls the function with the first `columnCount` cells of each row. ForEachRow is the way to
  /// read a table: it checks references, too.
  std::function<void(const TableSource&, std::size_t columnCount, const RowFunction&)> rows;
};

/// All tables. A table is later in the list than the tables that it refers to.
const std::vector<BuildingTable>& BuildingTables();

/// The table of a name, or null if there is none.
const BuildingTable* FindBuildingTable(std::string_view name);

/// Calls the function with each row of a table, in the order of the building. A reference to a row
/// that does not exist is null. The cells are passed in a vector that the next row reuses.
void ForEachRow(const TableSource& source, const BuildingTable& table, const RowFunction& function);

/// The number of rows of a table.
std::size_t CountRows(const TableSource& source, const BuildingTable& table);

}  // namespace KelIFC

#endif  // EXPORT_TABLES_TABLES_H_
