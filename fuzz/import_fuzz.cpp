#include <cstddef>
#include <cstdint>

#include "kelifc/kelifc.h"

#include "fuzz/memory_file.h"
#include "tools/kelifc/structure_format.h"
#include "tools/kelifc/structure_reader.h"

// Converts a file of arbitrary bytes and reads the whole structure through its interfaces. No
// operation may fail: a failure throws, which ends the process.

namespace {

void ReadAll(const char* path) {
  const KelIFC::LocalClasses classes;
  const auto server = KelIFC::CreateServer();
  if (KelIFC::GetModel(server.Get())->LoadIfcFile(path) != 0) return;
  const auto structure = KelIFC::Get(server, &IIFCServer::get_Structure);
  command::StructureJson("model", command::ReadStructure(structure));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static fuzz::MemoryFile file;
  file.Write({reinterpret_cast<const char*>(data), size});
  ReadAll(file.GetPath());
  return 0;
}
