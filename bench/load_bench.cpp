#include <benchmark/benchmark.h>

#include "bench/model.h"

namespace {

// A whole load; the destruction of the model is not measured.
void LoadWholeModel(benchmark::State& state) {
  KelIFC::IfcServer server;
  for (auto _ : state) {
    bench::LoadModel(server);
    state.PauseTiming();
    server.Reset();
    state.ResumeTiming();
  }
  state.SetBytesProcessed(state.iterations() * bench::GetModelSize());
}
BENCHMARK(LoadWholeModel)->Unit(benchmark::kMillisecond);

}  // namespace
