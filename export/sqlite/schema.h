#ifndef EXPORT_SQLITE_SCHEMA_H_
#define EXPORT_SQLITE_SCHEMA_H_

#include <string>
#include <string_view>
#include <vector>

#include "export/tables/tables.h"

namespace KelIFC::exporting {

/// A view that sums up elements. Parts of other elements are left out.
struct TakeoffView {
  std::string_view name;
  std::string_view meaning;  ///< what a row is, for a person
  std::string_view query;
};

const std::vector<TakeoffView>& TakeoffViews();

/// The statement that creates a table, with keys and foreign keys. Comments in it describe the
/// columns; a database keeps them.
std::string CreateStatement(const BuildingTable& table);

std::string CreateStatement(const TakeoffView& view);

/// The statement that inserts a row, with a parameter for each column.
std::string InsertStatement(const BuildingTable& table);

/// The statements that create the indexes: of all references, and of columns to search by.
std::vector<std::string> IndexStatements();

}  // namespace KelIFC::exporting

#endif  // EXPORT_SQLITE_SCHEMA_H_
