#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string_view>

#include "kelifc/core/unknown.h"
#include "kelifc/server/block_size.h"
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

// A new global identifier differs at each load, but not in its length.
std::size_t LengthOf(const KelIFC::IfcUnknown& item) {
  std::ostringstream out;
  item.Write(out);
  return out.str().size();
}

// Loads the text again, in small pieces on three threads, and compares the models.
void RequireSameOnThreads(KelIFC::LoadOptions options, std::string_view text, int result,
                          IfcServer& expected) {
  const KelIFC::BlockSizeScope scope(64);
  options.threads = 3;
  IfcServer server;
  Require(server.LoadIfcMemory(text.data(), text.size(), options) == result);
  if (result == 0) {
    expected.CheckModel();
    server.CheckModel();
    Require(FormatReportAsJson(server.GetLoadReport()) ==
            FormatReportAsJson(expected.GetLoadReport()));
  }
  Require(server.GetItems().size() == expected.GetItems().size());
  for (std::size_t i = 0; i < server.GetItems().size(); ++i) {
    const KelIFC::IfcUnknown* const item = server.GetItems()[i];
    Require(server.Find(item) == expected.Find(expected.GetItems()[i]));
    Require(LengthOf(*item) == LengthOf(*expected.GetItems()[i]));
  }
}

void LoadInDialect(KelIFC::STEP_DIALECT dialect, bool keepsUnknown, std::string_view text) {
  KelIFC::LoadOptions options;
  options.dialect = dialect;
  options.keepUnknown = keepsUnknown;
  IfcServer server;
  const int result = server.LoadIfcMemory(text.data(), text.size(), options);
  if (result == 0) RequireReport(server, text.size());
  AskForEverything(server);
  // Threads take time to start, so only some of the inputs are loaded by several.
  if (text.size() % 8 == 0) RequireSameOnThreads(options, text, result, server);
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
