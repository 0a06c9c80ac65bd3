#include <string>
#include <variant>
#include <vector>

#include "export/tables/tables.h"
#include "python/source/bindings.h"
#include "python/source/errors.h"
#include "python/source/owned.h"
#include "python/source/to_python.h"

namespace KelIFC::python {
namespace {

const BuildingTable& TableOf(const std::string& name) {
  if (const BuildingTable* const table = FindBuildingTable(name)) return *table;
  std::string names;
  for (const BuildingTable& table : BuildingTables()) names += " " + std::string(table.name);
  Raise(PyExc_ValueError, "no table '" + name + "'; the tables are:" + names);
}

py::object CellToPython(const TableCell& cell) {
  if (const auto* const text = std::get_if<std::string_view>(&cell)) return ToText(*text);
  if (const auto* const integer = std::get_if<std::int64_t>(&cell)) return py::int_(*integer);
  if (const auto* const real = std::get_if<double>(&cell)) return py::float_(*real);
  if (const auto* const truth = std::get_if<bool>(&cell)) return py::bool_(*truth);
  return py::none();
}

py::dict ColumnsOf(const View<Building>& self, const std::string& name, const std::string& file) {
  const BuildingTable& table = TableOf(name);
  std::vector<py::list> columns(table.columns.size());
  ForEachRow({*self.item, file}, table, [&](const std::vector<TableCell>& cells) {
    for (std::size_t i = 0; i < columns.size(); ++i) columns[i].append(CellToPython(cells[i]));
  });
  py::dict all;
  for (std::size_t i = 0; i < columns.size(); ++i) all[ToText(table.columns[i].name)] = columns[i];
  return all;
}

const char* NameOf(ColumnType type) {
  switch (type) {
    case ColumnType::kText:
      return "str";
    case ColumnType::kInteger:
      return "int";
    case ColumnType::kReal:
      return "float";
    case ColumnType::kBoolean:
      return "bool";
  }
  return "";
}

py::dict Tables() {
  py::dict tables;
  for (const BuildingTable& table : BuildingTables()) {
    py::dict columns;
    for (const TableColumn& column : table.columns) {
      columns[ToText(column.name)] = py::make_tuple(NameOf(column.type), ToText(column.unit));
    }
    tables[ToText(table.name)] = columns;
  }
  return tables;
}

}  // namespace

void BindTables(py::module_& module) {
  auto type = py::reinterpret_borrow<py::class_<View<Building>>>(module.attr("Building"));
  type.def("table", &ColumnsOf, py::arg("name") = "elements", py::arg("file") = "",
           "table(name: str = 'elements', file: str = '') -> dict[str, list[Any]]\n"
           "\n"
           "Returns the columns of a table by their names; None is a missing value. tables()\n"
           "lists the tables. `file` is the path of the model that the table of the model names.");
  module.def("tables", &Tables,
             "tables() -> dict[str, dict[str, tuple[str, str]]]\n"
             "\n"
             "Returns for each table of a building its columns: the type 'str', 'int', 'float' or\n"
             "'bool', and the unit, which is empty for none.");
}

}  // namespace KelIFC::python
