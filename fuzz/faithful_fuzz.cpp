#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "kelifc/core/cartesian_point.h"
#include "kelifc/server/ifc_server.h"

#include "fuzz/memory_file.h"
#include "fuzz/source_statements.h"

// Loads a file of arbitrary bytes in the dialect of ISO 10303-21 and saves it faithfully. Without a
// change the statements after the schema stay the same, token for token. With an instance deleted
// and one added, the save still succeeds, and the saved file holds the new instance.

namespace {

using KelIFC::IfcServer;

std::string Save(IfcServer& server, fuzz::MemoryFile& file) {
  KelIFC::SaveOptions options;
  options.faithful = true;
  if (server.SaveIfc(file.GetPath(), options) != KelIFC::SAVE_RESULT_SAVED) std::abort();
  return file.Read();
}

int Load(IfcServer& server, std::string_view text) {
  KelIFC::LoadOptions options;
  options.dialect = KelIFC::STEP_DIALECT_ISO;
  return server.LoadIfcMemory(text.data(), text.size(), options);
}

void RequireSame(std::string_view before, std::string_view after) {
  const auto wanted = fuzz::StatementsAfterSchema(before);
  const auto given = fuzz::StatementsAfterSchema(after);
  for (std::size_t i = 0; i < wanted.size() || i < given.size(); ++i) {
    const std::string a = i < wanted.size() ? wanted[i] : "nothing";
    const std::string b = i < given.size() ? given[i] : "nothing";
    if (a == b) continue;
    std::fprintf(stderr, "A statement changes:\n%s\n====\n%s\n", a.c_str(), b.c_str());
    std::abort();
  }
}

void ChangeAndSave(IfcServer& server, fuzz::MemoryFile& file) {
  if (const std::size_t first = server.GetNextNumber(0)) server.DeleteItem(server.GetItem(first));
  const std::size_t number = server.AddItem(new KelIFC::IfcCartesianPoint(2, 3));
  const std::string saved = Save(server, file);
  IfcServer again;
  if (Load(again, saved) != 0) std::abort();
  const KelIFC::IfcUnknown* const added = again.GetItem(number);
  // A file cannot refer to a number beyond the signed range.
  if (number > INT64_MAX) return;
  if (dynamic_cast<const KelIFC::IfcCartesianPoint*>(added) == nullptr) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static fuzz::MemoryFile file;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  IfcServer server;
  if (Load(server, text) != 0) return 0;
  RequireSame(text, Save(server, file));
  ChangeAndSave(server, file);
  return 0;
}
