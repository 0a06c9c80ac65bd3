#include "export/tables/tables.h"

#include <algorithm>
#include <map>
#include <unordered_set>

#include "export/tables/table_list.h"

namespace KelIFC {
namespace {

using Keys = std::unordered_set<std::int64_t>;

Keys KeysOf(const TableSource& source, const BuildingTable& table) {
  Keys keys;
  table.rows(source, 1, [&](const std::vector<TableCell>& row) {
    if (const auto* key = std::get_if<std::int64_t>(row.data())) keys.insert(*key);
  });
  return keys;
}

/// The columns that refer to other tables, with the keys that exist. The columns of the key are
/// left out: a row of a table of parts is made from the row to which it refers.
class References {
 public:
  References(const TableSource& source, const BuildingTable& table) {
    for (std::size_t i = table.keyColumns; i < table.columns.size(); ++i) {
      const std::string_view name = table.columns[i].references;
      if (name.empty()) continue;
      const auto [keys, isNew] = tables.try_emplace(name);
      if (isNew) keys->second = KeysOf(source, *FindBuildingTable(name));
      columns.emplace_back(i, &keys->second);
    }
  }

  /// Makes references null that lead nowhere.
  void Check(std::vector<TableCell>& row) const {
    for (const auto& [column, keys] : columns) {
      const auto* key = std::get_if<std::int64_t>(&row[column]);
      if (key != nullptr && keys->count(*key) == 0) row[column] = TableCell();
    }
  }

  bool IsEmpty() const { return columns.empty(); }

 private:
  std::map<std::string_view, Keys> tables;
  std::vector<std::pair<std::size_t, const Keys*>> columns;
};

}  // namespace

const std::vector<BuildingTable>& BuildingTables() {
  static const std::vector<BuildingTable> tables = {
      exporting::ModelTable(),     exporting::StoreyTable(),       exporting::MaterialTable(),
      exporting::ProfileTable(),   exporting::ElementTable(),      exporting::LayerTable(),
      exporting::AxisPointTable(), exporting::OutlinePointTable(), exporting::OpeningTable(),
      exporting::LossTable()};
  return tables;
}

const BuildingTable* FindBuildingTable(std::string_view name) {
  const std::vector<BuildingTable>& tables = BuildingTables();
  const auto at = std::find_if(tables.begin(), tables.end(),
                               [&](const BuildingTable& table) { return table.name == name; });
  return at == tables.end() ? nullptr : &*at;
}

void ForEachRow(const TableSource& source, const BuildingTable& table,
                const RowFunction& function) {
  const References references(source, table);
  if (references.IsEmpty()) return table.rows(source, table.columns.size(), function);
  std::vector<TableCell> checked;
  table.rows(source, table.columns.size(), [&](const std::vector<TableCell>& row) {
    checked = row;
    references.Check(checked);
    function(checked);
  });
}

std::size_t CountRows(const TableSource& source, const BuildingTable& table) {
  std::size_t count = 0;
  table.rows(source, 0, [&](const std::vector<TableCell>&) { ++count; });
  return count;
}

}  // namespace KelIFC
