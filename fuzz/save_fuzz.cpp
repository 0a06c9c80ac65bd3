#include <cstddef>
#include <cstdint>

#include "kelifc/server/ifc_server.h"

#include "fuzz/model_text.h"

// What was loaded from any file and saved settles, loaded and saved again, within a few rounds.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static fuzz::MemoryFile file;
  file.Write({reinterpret_cast<const char*>(data), size});
  fuzz::RequireSettled({}, [](std::string& saved) {
    KelIFC::IfcServer server;
    if (server.LoadIfcFile(file.GetPath()) != 0) return false;
    saved = fuzz::SaveToText(server, file);
    // Placements in the plane make a direction of their own in each load.
    return saved.find("IFCAXIS2PLACEMENT2D") == std::string::npos &&
           server.GetRelease() >= KelIFC::IFC_RELEASE_2X && fuzz::AreRegular(server, saved);
  });
  return 0;
}
