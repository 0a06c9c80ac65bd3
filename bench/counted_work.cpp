#include <cstdio>
#include <cstdlib>
#include <string>

#include "kelifc/building/read_building.h"
#include "kelifc/geo/interfaces.h"
#include "kelifc/model_access.h"
#include "kelifc/platform/com.h"
#include "kelifc/server/ifc_server.h"

#include "bench/conversion.h"

// Loads, converts, saves and resets a model by the classic rules. Then loads it again by the rules
// of ISO 10303-21, reads its building completely, and saves it. scripts/count-instructions counts
// the instructions inside the functions below. Their names are `Counted` and the name of the work,
// and they must not be inlined.

namespace {

using KelIFC::IfcServer;

void Require(bool success, const char* what) {
  if (success) return;
  std::fprintf(stderr, "%s failed\n", what);
  std::exit(1);
}

}  // namespace

extern "C" {

[[gnu::noinline]] void CountedLoad(IfcServer& server, const char* path) {
  Require(server.LoadIfcFile(path) == 0, "load");
}

[[gnu::noinline]] void CountedConversion(IGeoStructure& structure) {
  Require(bench::ConvertAll(structure) > 0, "conversion");
}

[[gnu::noinline]] void CountedSave(IfcServer& server, const char* path) {
  Require(server.SaveIfcFile(path) == 0, "save");
}

[[gnu::noinline]] void CountedReset(IfcServer& server) { server.Reset(); }

[[gnu::noinline]] void CountedIsoLoad(IfcServer& server, const char* path) {
  KelIFC::LoadOptions options;
  options.dialect = KelIFC::STEP_DIALECT_ISO;
  Require(server.LoadIfc(path, options) == KelIFC::LOAD_RESULT_LOADED, "load of ISO 10303-21");
}

[[gnu::noinline]] void CountedBuilding(IfcServer& server) {
  Require(KelIFC::ReadBuilding(server).totals.products > 0, "reading the building");
}

[[gnu::noinline]] void CountedIsoSave(IfcServer& server, const char* path) {
  Require(server.SaveIfc(path, {}) == KelIFC::SAVE_RESULT_SAVED, "save of ISO 10303-21");
}

}  // extern "C"

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fprintf(stderr, "counted_work MODEL.ifc SAVED.ifc\n");
    return 64;
  }
  const auto server = bench::MakeServer();
  IfcServer& model = *KelIFC::GetModel(server.Get());
  CountedLoad(model, argv[1]);
  {
    const auto structure = bench::GetStructure(*server);
    CountedConversion(*structure);
  }
  CountedSave(model, argv[2]);
  CountedReset(model);
  CountedIsoLoad(model, argv[1]);
  CountedBuilding(model);
  CountedIsoSave(model, argv[2]);
}
