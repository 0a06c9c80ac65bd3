#ifndef KELIFC_SERVER_BLOCK_SEARCH_H_
#define KELIFC_SERVER_BLOCK_SEARCH_H_

#include <bit>

// Searches text for the first of a few characters, sixteen bytes at a time if the processor has the
// instructions for it. Only the condition below depends on the processor.

#if defined(__SSE2__) || defined(_M_X64)

#include <emmintrin.h>

namespace KelIFC::block {

inline constexpr int kSize = 16;
using Register = __m128i;

inline Register Load(const char* text) {
  return _mm_loadu_si128(reinterpret_cast<const Register*>(text));
}
inline Register Equals(Register text, char value) {
  return _mm_cmpeq_epi8(text, _mm_set1_epi8(value));
}
inline Register IsLess(Register text, char value) {
  return _mm_cmplt_epi8(text, _mm_set1_epi8(value));
}
inline Register IsGreater(Register text, char value) {
  return _mm_cmpgt_epi8(text, _mm_set1_epi8(value));
}
inline Register Both(Register a, Register b) { return _mm_and_si128(a, b); }
inline Register Either(Register a, Register b) { return _mm_or_si128(a, b); }
inline Register None() { return _mm_setzero_si128(); }
inline unsigned MaskOf(Register hits) { return static_cast<unsigned>(_mm_movemask_epi8(hits)); }

}  // namespace KelIFC::block

#else

namespace KelIFC::block {

// Other processors search all text bytewise.
inline constexpr int kSize = 0;
struct Register {};

Register Load(const char* text);
Register Either(Register a, Register b);
Register None();
unsigned MaskOf(Register hits);

}  // namespace KelIFC::block

#endif

namespace KelIFC {

// The same comparisons for one character. Characters compare as signed numbers: bytes above 127 are
// below all others.
namespace block {

constexpr bool Equals(char c, char value) { return c == value; }
constexpr bool IsLess(char c, char value) {
  return static_cast<signed char>(c) < static_cast<signed char>(value);
}
constexpr bool IsGreater(char c, char value) { return IsLess(value, c); }
constexpr bool Both(bool a, bool b) { return a && b; }

}  // namespace block

/// Matches one character.
template <char kCharacter>
struct Is {
  template <class Text>
  static auto Match(Text text) {
    return block::Equals(text, kCharacter);
  }
};

/// Matches the ASCII characters below one of them, and all bytes above 127.
template <char kCharacter>
struct Below {
  template <class Text>
  static auto Match(Text text) {
    return block::IsLess(text, kCharacter);
  }
};

/// Matches the ASCII characters from one to another.
template <char kFirst, char kLast>
struct Within {
  template <class Text>
  static auto Match(Text text) {
    return block::Both(block::IsGreater(text, kFirst - 1), block::IsLess(text, kLast + 1));
  }
};

/// The first position in [at, end) whose character one of the matchers matches, or `end`; one byte
/// at a time.
template <class... Matchers>
const char* FindMatchBytewise(const char* at, const char* end) {
  while (at != end && !(Matchers::Match(*at) || ...)) ++at;
  return at;
}

/// One bit for each character of a block, set where one of the matchers matches.
template <class... Matchers>
unsigned FindInBlock(const char* at) {
  const block::Register text = block::Load(at);
  block::Register hits = block::None();
  ((hits = block::Either(hits, Matchers::Match(text))), ...);
  return block::MaskOf(hits);
}

/// The first position in [at, end) whose character one of the matchers matches, or `end`. Reads
/// nothing outside the range.
template <class... Matchers>
const char* FindMatch(const char* at, const char* end) {
  if constexpr (block::kSize != 0) {
    const bool hasBlock = end - at >= block::kSize;
    for (; end - at >= block::kSize; at += block::kSize) {
      const unsigned mask = FindInBlock<Matchers...>(at);
      if (mask != 0) return at + std::countr_zero(mask);
    }
    if (hasBlock && at != end) {
      // The last block overlaps the one before it, in which nothing matches.
      const unsigned mask = FindInBlock<Matchers...>(end - block::kSize);
      return mask == 0 ? end : end - block::kSize + std::countr_zero(mask);
    }
  }
  return FindMatchBytewise<Matchers...>(at, end);
}

/// The first position in [at, end) that holds one of the characters, or `end`.
template <char... kCharacters>
const char* FindAnyOf(const char* at, const char* end) {
  return FindMatch<Is<kCharacters>...>(at, end);
}

}  // namespace KelIFC

#endif  // KELIFC_SERVER_BLOCK_SEARCH_H_
