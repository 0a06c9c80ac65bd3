#ifndef KELIFC_CORE_PREFETCH_H_
#define KELIFC_CORE_PREFETCH_H_

namespace KelIFC {

/// Asks for the memory at `address`, which is needed soon. The address need not be valid. A hint:
/// where the compiler has no such thing, nothing happens.
inline void Prefetch([[maybe_unused]] const void* address) {
#if defined(__GNUC__)
  __builtin_prefetch(address);
#endif
}

/// The same for an object of which only the begin is known: as much as most instances take.
/// Null asks for nothing.
inline void PrefetchInstance(const void* address) {
  constexpr int kLine = 64;
  if (address == nullptr) return;
  Prefetch(address);
  Prefetch(static_cast<const char*>(address) + kLine);
}

}  // namespace KelIFC

#endif  // KELIFC_CORE_PREFETCH_H_
