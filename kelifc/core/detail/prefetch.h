#ifndef KELIFC_CORE_DETAIL_PREFETCH_H_
#define KELIFC_CORE_DETAIL_PREFETCH_H_

#include <cstddef>

namespace KelIFC::detail {

/// Prefetches the memory at `address`, which need not be valid. This is a hint only: with a
/// compiler that has no such operation, it does nothing.
inline void Prefetch([[maybe_unused]] const void* address) {
#if defined(__GNUC__)
  __builtin_prefetch(address);
#endif
}

/// Prefetches the first `size` bytes of an object. Most instances have no more than 128 bytes;
/// instances with many attributes have 256 bytes or more. Null is ignored.
inline void PrefetchInstance(const void* address, std::size_t size = 128) {
  constexpr std::size_t kLine = 64;
  if (address == nullptr) return;
  for (std::size_t at = 0; at < size; at += kLine) Prefetch(static_cast<const char*>(address) + at);
}

}  // namespace KelIFC::detail

#endif  // KELIFC_CORE_DETAIL_PREFETCH_H_
