#include "kelifc/core/detail/position_index.h"

#include <chrono>

namespace KelIFC::detail {

namespace {

// Every step is reversible, so distinct keys stay distinct until the mask is applied.
std::uint64_t Mix(std::uint64_t key) {
  key ^= key >> 33;
  key *= 0xFF51'AFD7'ED55'8CCD;
  key ^= key >> 33;
  key *= 0xC4CE'B9FE'1A85'EC53;
  return key ^ (key >> 33);
}

std::uint64_t MakeSeed() {
  const auto now = std::chrono::high_resolution_clock::now().time_since_epoch().count();
  const int local = 0;  // its address differs between processes
  return Mix(static_cast<std::uint64_t>(now)) ^ reinterpret_cast<std::uintptr_t>(&local);
}

}  // namespace

std::size_t PositionIndex::HashKey(std::size_t key) {
  static const std::uint64_t seed = MakeSeed();
  return static_cast<std::size_t>(Mix(key ^ seed));
}

}  // namespace KelIFC::detail
