#include <cstddef>
#include <cstdint>

#include "kelifc/server/ifc_server.h"

#include "fuzz/model_text.h"

// Loads a file of arbitrary bytes and saves it, then loads and saves the result again. The saved
// file must stop changing after a few rounds.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static fuzz::MemoryFile file;
  file.Write({reinterpret_cast<const char*>(data), size});
  fuzz::RequireSettled({}, [](std::string& saved) {
    KelIFC::IfcServer server;
    if (server.LoadIfcFile(file.GetPath()) != 0) return false;
    saved = fuzz::SaveToText(server, file);
    // Placements in the plane are excluded: each load creates a new direction for them.
    return saved.find("IFCAXIS2PLACEMENT2D") == std::string::npos &&
           server.GetRelease() >= KelIFC::IFC_RELEASE_2X && fuzz::AreRegular(server, saved);
  });
  return 0;
}
