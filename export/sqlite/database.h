#ifndef EXPORT_SQLITE_DATABASE_H_
#define EXPORT_SQLITE_DATABASE_H_

#include <memory>
#include <string>
#include <vector>

#include "export/tables/tables.h"

struct sqlite3;
struct sqlite3_stmt;

namespace KelIFC::exporting {

/// A database that is written. All functions throw ExportError with ExportFailure::kFile if the
/// file cannot be written, and std::bad_alloc.
class Database {
 public:
  /// Opens the file at `path`. Messages call it `name`.
  Database(const std::string& path, const std::string& name);
  ~Database();
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  /// Runs statements that return no rows.
  void Run(const std::string& statements);

  /// Closes the file. It is called once, at the end, after all statements are destroyed.
  void Close();

 private:
  friend class Statement;

  /// Throws if a function of SQLite did not return `expected`.
  void Require(int result, int expected);

  std::string name;
  sqlite3* handle = nullptr;
};

/// A statement that is run again and again with other values. It must not outlive its database.
class Statement {
 public:
  Statement(Database& database, const std::string& text);
  ~Statement();
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;

  /// Runs the statement with a value for each of its parameters.
  void Run(const std::vector<TableCell>& values);

 private:
  Database& database;
  sqlite3_stmt* handle = nullptr;
};

}  // namespace KelIFC::exporting

#endif  // EXPORT_SQLITE_DATABASE_H_
