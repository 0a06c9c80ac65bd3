#include <benchmark/benchmark.h>

#include <cstddef>

#include "kelifc/core/unknown.h"
#include "kelifc/server/ifc_server.h"

namespace {

constexpr const char* kNames[] = {
    "IFCCARTESIANPOINT", "IFCPOLYLOOP",   "IFCFACEOUTERBOUND",      "IFCFACE",
    "IFCCARTESIANPOINT", "IFCDIRECTION",  "IFCPROPERTYSINGLEVALUE", "IFCLOCALPLACEMENT",
    "IFCCARTESIANPOINT", "IFCQUANTITYFOO"};

// Creates an instance by the name of its class, and destroys it.
void MakeInstanceByName(benchmark::State& state) {
  KelIFC::IfcServer server;
  std::size_t i = 0;
  for (auto _ : state) {
    delete server.InstantiateClass2x3(kNames[i]);
    i = i + 1 < std::size(kNames) ? i + 1 : 0;
  }
}
BENCHMARK(MakeInstanceByName);

}  // namespace
