#ifndef EXPORT_TABLES_TABLE_MAKER_H_
#define EXPORT_TABLES_TABLE_MAKER_H_

#include <cmath>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "export/tables/tables.h"

namespace KelIFC::exporting {

/// The texts of a row that the building does not hold in the form in which a cell needs them.
using KeptTexts = std::deque<std::string>;

/// A cell of a text. It is null if the text is empty. Bytes that are not UTF-8, and U+0000, become
/// U+FFFD; the new text is kept in `kept`.
TableCell TextCell(std::string_view text, KeptTexts& kept);

/// Makes a table from items, such as the elements of a building. Each column has a function that
/// reads its value from an item; it can be a pointer to a data member.
template <class Item>
class TableMaker {
 public:
  template <class Value>
  using Reader = std::function<Value(const Item&)>;

  TableMaker(std::string_view name, std::size_t keyColumns, std::string_view meaning) {
    table.name = name;
    table.meaning = meaning;
    table.keyColumns = keyColumns;
  }

  TableMaker& Text(std::string_view name, std::string_view meaning, Reader<std::string_view> read) {
    return Add({name, ColumnType::kText, "", meaning},
               [read = std::move(read)](const Item& item, KeptTexts& kept) {
                 return TextCell(read(item), kept);
               });
  }

  /// A text that is made for the cell.
  TableMaker& MadeText(std::string_view name, std::string_view meaning, Reader<std::string> read) {
    return Add({name, ColumnType::kText, "", meaning},
               [read = std::move(read)](const Item& item, KeptTexts& kept) {
                 return TextCell(kept.emplace_back(read(item)), kept);
               });
  }

  /// A number. It is null if it is not finite.
  TableMaker& Real(std::string_view name, std::string_view unit, std::string_view meaning,
                   Reader<std::optional<double>> read) {
    return Add({name, ColumnType::kReal, unit, meaning},
               [read = std::move(read)](const Item& item, KeptTexts&) {
                 const std::optional<double> value = read(item);
                 return value && std::isfinite(*value) ? TableCell(*value) : TableCell();
               });
  }

  /// The three coordinates x, y and z, with names that end with X, Y and Z.
  template <class Coordinates>
  TableMaker& Space(const std::array<std::string_view, 3>& names, std::string_view unit,
                    std::string_view meaning, Reader<std::optional<Coordinates>> read) {
    constexpr double Coordinates::*kCoordinates[] = {&Coordinates::x, &Coordinates::y,
                                                     &Coordinates::z};
    for (std::size_t i = 0; i < names.size(); ++i) {
      Real(names[i], unit, meaning,
           [read, coordinate = kCoordinates[i]](const Item& item) -> std::optional<double> {
             const std::optional<Coordinates> value = read(item);
             return value ? std::optional<double>(*value.*coordinate) : std::nullopt;
           });
    }
    return *this;
  }

  /// A number of things, or an index in a list.
  TableMaker& Integer(std::string_view name, std::string_view meaning,
                      Reader<std::optional<std::size_t>> read, std::string_view references = {}) {
    return Add({name, ColumnType::kInteger, "", meaning, references},
               [read = std::move(read)](const Item& item, KeptTexts&) {
                 const std::optional<std::size_t> value = read(item);
                 return value ? TableCell(static_cast<std::int64_t>(*value)) : TableCell();
               });
  }

  /// An instance number. It is null for 0, which means none.
  TableMaker& Id(std::string_view name, std::string_view meaning, Reader<std::size_t> read,
                 std::string_view references = {}) {
    return Integer(
        name, meaning,
        [read = std::move(read)](const Item& item) -> std::optional<std::size_t> {
          const std::size_t id = read(item);
          return id == 0 ? std::nullopt : std::optional<std::size_t>(id);
        },
        references);
  }

  TableMaker& Boolean(std::string_view name, std::string_view meaning, Reader<bool> read) {
    return Add({name, ColumnType::kBoolean, "", meaning},
               [read = std::move(read)](const Item& item, KeptTexts&) {
                 return TableCell(std::in_place_type<bool>, read(item));
               });
  }

  /// The table. `forEachItem` calls a function with each item. The maker is empty afterwards.
  BuildingTable Make(
      std::function<void(const TableSource&, const std::function<void(const Item&)>&)>
          forEachItem) {
    table.rows = [readers = std::move(readers), forEachItem = std::move(forEachItem)](
                     const TableSource& source, std::size_t count, const RowFunction& function) {
      std::vector<TableCell> row(count);
      KeptTexts kept;
      forEachItem(source, [&](const Item& item) {
        for (std::size_t i = 0; i < count; ++i) row[i] = readers[i](item, kept);
        function(row);
        if (!kept.empty()) kept.clear();
      });
    };
    return std::move(table);
  }

 private:
  using CellReader = std::function<TableCell(const Item&, KeptTexts&)>;

  TableMaker& Add(const TableColumn& column, CellReader reader) {
    table.columns.push_back(column);
    readers.push_back(std::move(reader));
    return *this;
  }

  BuildingTable table;
  std::vector<CellReader> readers;
};

/// An entry of a list of the building, with its index.
template <class Entry>
struct Indexed {
  std::size_t index;
  const Entry& entry;
};

}  // namespace KelIFC::exporting

#endif  // EXPORT_TABLES_TABLE_MAKER_H_
