#include <cstddef>
#include <cstdint>
#include <string>

#include "kelifc/core/unknown.h"
#include "kelifc/server/ifc_server.h"

#include "fuzz/model_text.h"

// Reads an arbitrary text as a statement and writes it, then reads and writes the result again. The
// text must stop changing after a few rounds. One round is not enough: a person of the newer
// releases loses a name in each round. The first byte selects the release; the other bytes are the
// statement.

namespace {

using KelIFC::IfcServer;
using KelIFC::IfcUnknown;

/// Adds the instance that `text` describes to the model, as #1. The model owns it. Returns null if
/// the class is unknown.
IfcUnknown* Read(IfcServer& server, const std::string& text) {
  IfcUnknown* instance = server.ParseClass(text.c_str(), nullptr);
  server.InsertItem(1, instance);
  if (instance != nullptr) instance->Parse(text.c_str());
  return instance;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const auto release = static_cast<KelIFC::IFC_RELEASE>(1 + data[0] % 5);
  const std::string text(reinterpret_cast<const char*>(data) + 1, size - 1);
  fuzz::RequireSettled(text, [release](std::string& text) {
    IfcServer server;
    server.SetRelease(release);
    const IfcUnknown* instance = Read(server, text);
    if (instance == nullptr) return false;
    text = fuzz::WriteRecord(*instance);
    return fuzz::IsRegular(server, text);
  });
  return 0;
}
