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

/// Returns a server object with the loaded model. Nothing is converted yet.
ComPtr<IIFCServer> LoadForHost() {
  auto server = bench::MakeServer();
  bench::LoadModel(*GetModel(server.Get()));
  return server;
}

// Converts all collections of a loaded model.
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

// Gets the storey number of each wall. Each call searches for the storey again.
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
