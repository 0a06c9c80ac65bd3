#ifndef KELIFC_CORE_DETAIL_PREFETCH_H_
#define KELIFC_CORE_DETAIL_PREFETCH_H_

#include <cstddef>

namespace KelIFC::detail {

/// Asks for the memory at `address`, which is needed soon. The address need not be valid. A hint:
/// where the compiler has no such thing, nothing happens.
inline void Prefetch([[maybe_unused]] const void* address) {
#if defined(__GNUC__)
  __builtin_prefetch(address);
#endif
}

/// The same for an object of which only the begin is known: for its first `size` bytes. Most
/// instances have no more than 128, those with many attributes twice as many and more. Null asks
/// for nothing.
inline void PrefetchInstance(const void* address, std::size_t size = 128) {
  constexpr std::size_t kLine = 64;
  if (address == nullptr) return;
  for (std::size_t at = 0; at < size; at += kLine) Prefetch(static_cast<const char*>(address) + at);
}

}  // namespace KelIFC::detail

#endif  // KELIFC_CORE_DETAIL_PREFETCH_H_
