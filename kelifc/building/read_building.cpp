#include "kelifc/building/read_building.h"

#include <new>
#include <stdexcept>

#include "kelifc/building/build/assemble.h"
#include "kelifc/building/read/read_model.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {

ReadingCancelled::~ReadingCancelled() = default;

const char* ReadingCancelled::what() const noexcept { return "the reading was cancelled"; }

Building ReadBuilding(IfcServer& server, const ReadingOptions& options) {
  if (server.GetRelease() < IFC_RELEASE_2X) return {};
  try {
    return building::Assemble(building::ReadModel(server, options), options);
  } catch (const std::length_error&) {  // a list would be longer than memory can hold
    throw std::bad_alloc();
  }
}

}  // namespace KelIFC
