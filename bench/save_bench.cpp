#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>

#include "bench/model.h"

namespace {

// Saves the model to a file in the folder of the model.
void SaveWholeModel(benchmark::State& state) {
  const std::string path = bench::GetModelPath() + ".saved";
  for (auto _ : state) bench::GetLoadedServer().SaveIfcFile(path.c_str());
  const auto size = static_cast<std::int64_t>(std::filesystem::file_size(path));
  state.SetBytesProcessed(state.iterations() * size);
  std::remove(path.c_str());
}
BENCHMARK(SaveWholeModel)->Unit(benchmark::kMillisecond);

}  // namespace
