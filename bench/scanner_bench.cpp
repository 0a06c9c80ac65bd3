#include <benchmark/benchmark.h>

#include <fstream>

#include "kelifc/server/scanner.h"

#include "bench/model.h"

namespace {

// Splits the file into statements, without parsing them.
void ScanModel(benchmark::State& state) {
  for (auto _ : state) {
    std::ifstream file(bench::GetModelPath(), std::ios::binary);
    KelIFC::Scanner scanner(file);
    std::size_t statements = 0;
    while (scanner.Next() != nullptr) ++statements;
    benchmark::DoNotOptimize(statements);
  }
  state.SetBytesProcessed(state.iterations() * bench::GetModelSize());
}
BENCHMARK(ScanModel)->Unit(benchmark::kMillisecond);

}  // namespace
