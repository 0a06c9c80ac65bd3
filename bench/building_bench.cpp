#include <benchmark/benchmark.h>

#include <fstream>
#include <iterator>
#include <string>

#include "kelifc/building/read_building.h"

#include "bench/model.h"

namespace {

// Reads the building of a loaded model completely.
void ReadWholeBuilding(benchmark::State& state) {
  KelIFC::IfcServer& server = bench::GetLoadedServer();
  std::size_t products = 0;
  for (auto _ : state) {
    products = KelIFC::ReadBuilding(server).totals.products;
  }
  state.counters["products"] = static_cast<double>(products);
  state.SetBytesProcessed(state.iterations() * bench::GetModelSize());
}
BENCHMARK(ReadWholeBuilding)->Unit(benchmark::kMillisecond)->Iterations(5);

// Counts the semicolons outside of quotes, byte by byte. The complete reading may take 8.5 times as
// long as this loop.
void LoopOverBytes(benchmark::State& state) {
  std::ifstream file(bench::GetModelPath(), std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  for (auto _ : state) {
    std::size_t statements = 0;
    bool isQuoted = false;
    for (const char c : text) {
      if (c == '\'') isQuoted = !isQuoted;
      if (c == ';' && !isQuoted) ++statements;
    }
    benchmark::DoNotOptimize(statements);
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK(LoopOverBytes)->Unit(benchmark::kMillisecond)->Iterations(5);

}  // namespace
