#include <benchmark/benchmark.h>

#include <fstream>

#include "kelifc/server/scanner.h"

#include "bench/model.h"

namespace {

// Splits the file into statements, without parsing them.
template <class Scanner>
void ScanModel(benchmark::State& state) {
  for (auto _ : state) {
    std::ifstream file(bench::GetModelPath(), std::ios::binary);
    Scanner scanner(file);
    std::size_t statements = 0;
    while (scanner.Next() != nullptr) ++statements;
    benchmark::DoNotOptimize(statements);
  }
  state.SetBytesProcessed(state.iterations() * bench::GetModelSize());
}
BENCHMARK_TEMPLATE(ScanModel, KelIFC::Scanner)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(ScanModel, KelIFC::IsoScanner)->Unit(benchmark::kMillisecond);

}  // namespace
