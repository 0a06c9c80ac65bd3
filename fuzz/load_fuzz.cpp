#include <cstddef>
#include <cstdint>
#include <string_view>

#include "kelifc/core/unknown.h"
#include "kelifc/server/ifc_server.h"

#include "fuzz/memory_file.h"

// Loads a file of arbitrary bytes. Whether or not the load succeeds, all queries must work
// afterwards.

namespace {

using KelIFC::IfcServer;

void AskForEverything(IfcServer& server) {
  for (std::size_t n = server.GetNextNumber(0); n != 0; n = server.GetNextNumber(n)) {
    KelIFC::IfcUnknown* item = server.GetItem(n);
    if (item != nullptr && server.Find(item) != n) __builtin_trap();
  }
  server.GetItem(_GUID{1, 2, 3, {}});
  server.GetProject151();
  server.GetProject20();
  server.GetProject2x();
  server.GetProject2x2();
  server.GetProject2x3();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static fuzz::MemoryFile file;
  file.Write({reinterpret_cast<const char*>(data), size});
  IfcServer server;
  server.LoadIfcFile(file.GetPath());
  AskForEverything(server);
  return 0;
}
