#include <benchmark/benchmark.h>

#include <cstddef>

#include "kelifc/core/mvector.h"

#include "bench/model.h"

namespace {

using KelIFC::IfcUnknown;

// Finds the number of an instance, for all instances of the model in turn.
void FindInstance(benchmark::State& state) {
  KelIFC::IfcServer& server = bench::GetLoadedServer();
  const KelIFC::Mvector<IfcUnknown*>& items = server.GetItems();
  std::size_t i = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(server.Find(items[i]));
    i = i + 1 < items.size() ? i + 1 : 0;
  }
}
BENCHMARK(FindInstance);

// Gets the instance with a number, for all numbers in ascending order.
void GetItemByNumber(benchmark::State& state) {
  KelIFC::IfcServer& server = bench::GetLoadedServer();
  std::size_t number = 0;
  for (auto _ : state) {
    number = server.GetNextNumber(number);
    benchmark::DoNotOptimize(server.GetItem(number));
  }
}
BENCHMARK(GetItemByNumber);

// Gets the instance with a number, for numbers in pseudo-random order.
void GetItemByNumberAnywhere(benchmark::State& state) {
  KelIFC::IfcServer& server = bench::GetLoadedServer();
  const std::size_t count = server.GetNumberCount();
  std::size_t number = 1;
  for (auto _ : state) {
    number = (number * 1664525 + 1013904223) % count;
    benchmark::DoNotOptimize(server.GetItem(number));
  }
}
BENCHMARK(GetItemByNumberAnywhere);

}  // namespace
