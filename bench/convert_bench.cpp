#include <benchmark/benchmark.h>

#include <cstdlib>

#include "kelifc/geo/interfaces.h"
#include "kelifc/platform/com.h"

#include "bench/model.h"

namespace {

using namespace KelIFC;

void Require(HRESULT status) {
  if (FAILED(status)) std::abort();
}

/// A server object that holds the model, nothing of it converted.
ComPtr<IIFCServer> LoadForHost() {
  ComPtr<IIFCServer> server;
  Require(CoCreateInstance(CLSID_CoIFCServer, nullptr, CLSCTX_ALL, IidOf<IIFCServer>(),
                           reinterpret_cast<void**>(server.Put())));
  Require(server->Load(Bstr(WidePath(bench::GetModelPath())).Get()));
  return server;
}

/// Asks for one collection, which converts it, and gives its count.
template <class Collection>
LONG Convert(IGeoStructure& structure, HRESULT (IGeoStructure::*get)(Collection**)) {
  ComPtr<Collection> collection;
  Require((structure.*get)(collection.Put()));
  LONG count = 0;
  Require(collection->Count(&count));
  return count;
}

LONG ConvertAll(IGeoStructure& structure) {
  return Convert(structure, &IGeoStructure::get_Storeys) +
         Convert(structure, &IGeoStructure::get_Columns) +
         Convert(structure, &IGeoStructure::get_Beams) +
         Convert(structure, &IGeoStructure::get_Walls) +
         Convert(structure, &IGeoStructure::get_Plates) +
         Convert(structure, &IGeoStructure::get_Foots);
}

// The conversion of all collections of a loaded model.
void ConvertWholeModel(benchmark::State& state) {
  LONG elements = 0;
  for (auto _ : state) {
    state.PauseTiming();
    auto server = LoadForHost();
    ComPtr<IGeoStructure> structure;
    Require(server->get_Structure(structure.Put()));
    state.ResumeTiming();
    elements = ConvertAll(*structure);
    state.PauseTiming();
    structure.Reset();
    server.Reset();
    state.ResumeTiming();
  }
  state.counters["elements"] = static_cast<double>(elements);
  state.SetBytesProcessed(state.iterations() * bench::GetModelSize());
}
BENCHMARK(ConvertWholeModel)->Unit(benchmark::kMillisecond)->Iterations(5);

// The storey of each wall, which is looked for anew at each call.
void FindStoreysOfWalls(benchmark::State& state) {
  const auto server = LoadForHost();
  ComPtr<IGeoStructure> structure;
  Require(server->get_Structure(structure.Put()));
  ComPtr<IGeoWalls> walls;
  Require(structure->get_Walls(walls.Put()));
  LONG count = 0;
  Require(walls->Count(&count));
  for (auto _ : state) {
    for (LONG i = 1; i <= count; ++i) {
      ComPtr<IGeoWall> wall;
      SHORT number = 0;
      Require(walls->Item(i, wall.Put()));
      Require(wall->get_StoreyNumber(&number));
      benchmark::DoNotOptimize(number);
    }
  }
  state.SetItemsProcessed(state.iterations() * count);
}
BENCHMARK(FindStoreysOfWalls)->Unit(benchmark::kMillisecond);

}  // namespace
