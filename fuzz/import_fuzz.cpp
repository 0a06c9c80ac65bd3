#include <cstddef>
#include <cstdint>

#include "kelifc/kelifc.h"

#include "fuzz/memory_file.h"
#include "tools/kelifc/structure_format.h"
#include "tools/kelifc/structure_reader.h"

// A file of any bytes is converted, and all of the structure is read through its interfaces. An
// operation that fails there throws, which ends the process: none may.

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
