#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>

#include "bench/model.h"

namespace {

// A whole save, to a file beside the model.
void SaveWholeModel(benchmark::State& state) {
  const std::string path = bench::GetModelPath() + ".saved";
  for (auto _ : state) bench::GetLoadedServer().SaveIfcFile(path.c_str());
  const auto size = static_cast<std::int64_t>(std::filesystem::file_size(path));
  state.SetBytesProcessed(state.iterations() * size);
  std::remove(path.c_str());
}
BENCHMARK(SaveWholeModel)->Unit(benchmark::kMillisecond);

}  // namespace
