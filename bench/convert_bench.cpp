#include <benchmark/benchmark.h>

#include <cstdlib>

#include "kelifc/model_access.h"

#include "bench/conversion.h"
#include "bench/model.h"

namespace {

using namespace KelIFC;

void Require(HRESULT status) {
  if (FAILED(status)) std::abort();
}

/// A server object that holds the model, nothing of it converted.
ComPtr<IIFCServer> LoadForHost() {
  auto server = bench::MakeServer();
  bench::LoadModel(*GetModel(server.Get()));
  return server;
}

// The conversion of all collections of a loaded model.
void ConvertWholeModel(benchmark::State& state) {
  LONG elements = 0;
  for (auto _ : state) {
    state.PauseTiming();
    auto server = LoadForHost();
    auto structure = bench::GetStructure(*server);
    state.ResumeTiming();
    elements = bench::ConvertAll(*structure);
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
  const auto structure = bench::GetStructure(*server);
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
