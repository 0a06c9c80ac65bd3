#include <benchmark/benchmark.h>

#include "bench/model.h"

namespace {

// Loads the model. The reset between two loads is not measured.
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

// Resets a loaded model.
void ResetWholeModel(benchmark::State& state) {
  KelIFC::IfcServer server;
  for (auto _ : state) {
    state.PauseTiming();
    bench::LoadModel(server);
    state.ResumeTiming();
    server.Reset();
  }
  state.SetBytesProcessed(state.iterations() * bench::GetModelSize());
}
BENCHMARK(ResetWholeModel)->Unit(benchmark::kMillisecond)->Iterations(5);

}  // namespace
