#include <cstddef>
#include <cstdint>
#include <string_view>

#include "kelifc/core/unknown.h"
#include "kelifc/server/ifc_server.h"
#include "kelifc/server/report_format.h"

#include "fuzz/memory_file.h"

// Loads a file of arbitrary bytes, in both dialects. Whether or not the load succeeds, all queries
// must work afterwards, and the report must account for each number.

namespace {

using KelIFC::IfcServer;

void Require(bool condition) {
  if (!condition) __builtin_trap();
}

void AskForEverything(IfcServer& server) {
  for (std::size_t n = server.GetNextNumber(0); n != 0; n = server.GetNextNumber(n)) {
    KelIFC::IfcUnknown* item = server.GetItem(n);
    if (item != nullptr) Require(server.Find(item) == n);
  }
  server.GetItem(_GUID{1, 2, 3, {}});
  server.GetProject151();
  server.GetProject20();
  server.GetProject2x();
  server.GetProject2x2();
  server.GetProject2x3();
}

void RequireReport(IfcServer& server, std::size_t size) {
  Require(server.CheckModel());
  const KelIFC::LoadReport& report = server.GetLoadReport();
  Require(report.made + report.raw + report.dropped == report.numbers);
  Require(report.numbers <= report.statements);
  for (std::size_t n = server.GetNextNumber(0); n != 0; n = server.GetNextNumber(n)) {
    const KelIFC::StatementPlace place = server.GetStatementPlace(n);
    Require(place.offset + place.length <= size);
  }
  KelIFC::FormatReport(report);
  KelIFC::FormatReportAsJson(report);
}

void LoadInDialect(KelIFC::STEP_DIALECT dialect, bool keepsUnknown, std::string_view text) {
  KelIFC::LoadOptions options;
  options.dialect = dialect;
  options.keepUnknown = keepsUnknown;
  IfcServer server;
  if (server.LoadIfcMemory(text.data(), text.size(), options) == 0) {
    RequireReport(server, text.size());
  }
  AskForEverything(server);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static fuzz::MemoryFile file;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  file.Write(text);
  IfcServer server;
  server.LoadIfcFile(file.GetPath());
  AskForEverything(server);
  for (const bool keepsUnknown : {false, true}) {
    LoadInDialect(KelIFC::STEP_DIALECT_CLASSIC, keepsUnknown, text);
    LoadInDialect(KelIFC::STEP_DIALECT_ISO, keepsUnknown, text);
  }
  return 0;
}
