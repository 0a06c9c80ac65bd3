#ifndef KELIFC_PLATFORM_MEMORY_WATCH_H_
#define KELIFC_PLATFORM_MEMORY_WATCH_H_

namespace KelIFC {

/// True in a build with AddressSanitizer, which checks each block from the heap.
#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool kIsMemoryWatched = true;
#elif defined(__has_feature)
inline constexpr bool kIsMemoryWatched = __has_feature(address_sanitizer);
#else
inline constexpr bool kIsMemoryWatched = false;
#endif

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_MEMORY_WATCH_H_
