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

// Loads the model in the dialect of ISO 10303-21.
void LoadWholeModelInIso(benchmark::State& state) {
  KelIFC::IfcServer server;
  KelIFC::LoadOptions options;
  options.dialect = KelIFC::STEP_DIALECT_ISO;
  for (auto _ : state) {
    if (server.LoadIfc(bench::GetModelPath().c_str(), options) != 0) {
      state.SkipWithError("the model cannot be loaded");
    }
    state.PauseTiming();
    server.Reset();
    state.ResumeTiming();
  }
  state.SetBytesProcessed(state.iterations() * bench::GetModelSize());
}
BENCHMARK(LoadWholeModelInIso)->Unit(benchmark::kMillisecond);

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
