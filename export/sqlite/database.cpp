#include "export/sqlite/database.h"

#include <sqlite3.h>

#include <new>

#include "export/export.h"

namespace KelIFC::exporting {
namespace {

/// Binds a value to a parameter. Returns the result of SQLite.
class Binder {
 public:
  Binder(sqlite3_stmt* statement, int parameter) : statement(statement), parameter(parameter) {}

  int operator()(std::monostate) const { return sqlite3_bind_null(statement, parameter); }
  int operator()(std::int64_t number) const {
    return sqlite3_bind_int64(statement, parameter, number);
  }
  int operator()(double number) const { return sqlite3_bind_double(statement, parameter, number); }
  int operator()(bool value) const { return sqlite3_bind_int(statement, parameter, value ? 1 : 0); }

  // The text lives until the statement has run, so SQLite need not copy it.
  int operator()(std::string_view text) const {
    return sqlite3_bind_text64(statement, parameter, text.data(), text.size(), nullptr,
                               SQLITE_UTF8);
  }

 private:
  sqlite3_stmt* statement;
  int parameter;
};

}  // namespace

Database::Database(const std::string& path, const std::string& name) : name(name) {
  const int result =
      sqlite3_open_v2(path.c_str(), &handle, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
  try {
    Require(result, SQLITE_OK);
  } catch (...) {
    sqlite3_close(handle);
    throw;
  }
}

Database::~Database() { sqlite3_close(handle); }

void Database::Run(const std::string& statements) {
  Require(sqlite3_exec(handle, statements.c_str(), nullptr, nullptr, nullptr), SQLITE_OK);
}

void Database::Close() {
  Require(sqlite3_close(handle), SQLITE_OK);
  handle = nullptr;
}

void Database::Require(int result, int expected) {
  if (result == expected) return;
  if (result == SQLITE_NOMEM || handle == nullptr) throw std::bad_alloc();
  throw ExportError(ExportFailure::kFile, "cannot write " + name + ": " + sqlite3_errmsg(handle));
}

Statement::Statement(Database& database, const std::string& text) : database(database) {
  database.Require(sqlite3_prepare_v2(database.handle, text.c_str(), -1, &handle, nullptr),
                   SQLITE_OK);
}

Statement::~Statement() { sqlite3_finalize(handle); }

void Statement::Run(const std::vector<TableCell>& values) {
  int parameter = 0;
  for (const TableCell& value : values) {
    database.Require(std::visit(Binder(handle, ++parameter), value), SQLITE_OK);
  }
  database.Require(sqlite3_step(handle), SQLITE_DONE);
  database.Require(sqlite3_reset(handle), SQLITE_OK);
}

}  // namespace KelIFC::exporting
