#ifndef KELIFC_SERVER_BLOCK_SEARCH_H_
#define KELIFC_SERVER_BLOCK_SEARCH_H_

#include <bit>

// Searching text for the first of a few characters, sixteen bytes at a time where the processor
// can. The condition below is the only place that asks whether it can.

namespace KelIFC {

/// The first position in [at, end) that holds one of the characters, or `end`; one byte at a time.
template <char... kCharacters>
const char* FindAnyOfBytewise(const char* at, const char* end) {
  while (at != end && !((*at == kCharacters) || ...)) ++at;
  return at;
}

}  // namespace KelIFC

#if defined(__SSE2__) || defined(_M_X64)

#include <emmintrin.h>

namespace KelIFC {

/// The first position in [at, end) that holds one of the characters, or `end`. Reads nothing
/// outside the range.
template <char... kCharacters>
const char* FindAnyOf(const char* at, const char* end) {
  for (; end - at >= 16; at += 16) {
    const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
    __m128i hits = _mm_setzero_si128();
    ((hits = _mm_or_si128(hits, _mm_cmpeq_epi8(block, _mm_set1_epi8(kCharacters)))), ...);
    const auto mask = static_cast<unsigned>(_mm_movemask_epi8(hits));
    if (mask != 0) return at + std::countr_zero(mask);
  }
  return FindAnyOfBytewise<kCharacters...>(at, end);
}

}  // namespace KelIFC

#else

namespace KelIFC {

/// The same where the processor has no wide registers that are known here.
template <char... kCharacters>
const char* FindAnyOf(const char* at, const char* end) {
  return FindAnyOfBytewise<kCharacters...>(at, end);
}

}  // namespace KelIFC

#endif

#endif  // KELIFC_SERVER_BLOCK_SEARCH_H_
