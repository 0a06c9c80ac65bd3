#include "kelifc/server/plain_statement.h"

#include <atomic>
#include <bit>
#include <cstddef>
#include <cstdint>

#include "kelifc/core/text/quoting.h"

#if defined(__GNUC__) && defined(__x86_64__)
#include <immintrin.h>
#define KELIFC_HAS_BLOCKS
#endif

namespace KelIFC {
namespace {

// All line ends and the NUL are below this character. So are the tab and a few control characters,
// which are rare.
constexpr char kLastBreak = '\r';

// Continues a search at a character that is in a string or not.
const char* FindEndFrom(const char* at, const char* end, bool inString) {
  for (; at != end; ++at) {
    const auto c = static_cast<unsigned char>(*at);
    if (c == kQuote) inString = !inString;
    if (c == ';' && !inString) return at;
    if (c <= kLastBreak || (inString ? c == kEscape : c == '/')) return nullptr;
  }
  return nullptr;
}

#ifdef KELIFC_HAS_BLOCKS

constexpr std::ptrdiff_t kBlock = 64;

// One bit for each character of a block.
struct BlockBits {
  std::uint64_t quotes = 0;
  std::uint64_t outside = 0;  // those that matter outside of strings: `;` and `/`
  std::uint64_t escapes = 0;
  std::uint64_t breaks = 0;
};

// Sets each bit that has an odd number of set bits at and before its place.
std::uint64_t PrefixXor(std::uint64_t bits) {
  for (int distance = 1; distance < 64; distance *= 2) bits ^= bits << distance;
  return bits;
}

// The search, by a function that compares the characters of a block, and one that does what
// PrefixXor does.
template <class Compare, class Prefix>
[[gnu::always_inline]] inline const char* FindInBlocks(const char* at, const char* end,
                                                       Compare compare, Prefix prefix) {
  std::uint64_t inString = 0;  // all bits are set if the block begins in a string
  for (; end - at >= kBlock; at += kBlock) {
    const BlockBits bits = compare(at);
    const std::uint64_t strings = prefix(bits.quotes) ^ inString;
    const std::uint64_t marks = bits.breaks | (bits.outside & ~strings) | (bits.escapes & strings);
    if (marks != 0) {
      at += std::countr_zero(marks);
      return *at == ';' ? at : nullptr;
    }
    inString = 0 - (strings >> 63);
  }
  return FindEndFrom(at, end, inString != 0);
}

// Every processor of this architecture has these instructions.
BlockBits CompareSse2(const char* at) {
  constexpr int kPart = 16;
  BlockBits bits;
  for (int begin = 0; begin < kBlock; begin += kPart) {
    const __m128i text = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at + begin));
    const auto equals = [text](char c) { return _mm_cmpeq_epi8(text, _mm_set1_epi8(c)); };
    const auto bitsOf = [begin](__m128i hits) {
      return std::uint64_t{static_cast<unsigned>(_mm_movemask_epi8(hits))} << begin;
    };
    bits.quotes |= bitsOf(equals(kQuote));
    bits.outside |= bitsOf(_mm_or_si128(equals(';'), equals('/')));
    bits.escapes |= bitsOf(equals(kEscape));
    bits.breaks |= bitsOf(_mm_cmpeq_epi8(_mm_min_epu8(text, _mm_set1_epi8(kLastBreak)), text));
  }
  return bits;
}

// Registers of 32 bytes are no parameters of real calls: on some systems they would be passed in
// memory that is not aligned for them.
[[gnu::target("avx2"), gnu::always_inline]] inline std::uint64_t BitsOfAvx2(__m256i low,
                                                                            __m256i high) {
  return std::uint64_t{static_cast<unsigned>(_mm256_movemask_epi8(low))} |
         std::uint64_t{static_cast<unsigned>(_mm256_movemask_epi8(high))} << 32;
}

[[gnu::target("avx2"), gnu::always_inline]] inline std::uint64_t EqualsAvx2(__m256i low,
                                                                            __m256i high, char c) {
  const __m256i wanted = _mm256_set1_epi8(c);
  return BitsOfAvx2(_mm256_cmpeq_epi8(low, wanted), _mm256_cmpeq_epi8(high, wanted));
}

[[gnu::target("avx2")]] BlockBits CompareAvx2(const char* at) {
  const __m256i low = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(at));
  const __m256i high = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(at + 32));
  const __m256i last = _mm256_set1_epi8(kLastBreak);
  BlockBits bits;
  bits.quotes = EqualsAvx2(low, high, kQuote);
  bits.outside = EqualsAvx2(low, high, ';') | EqualsAvx2(low, high, '/');
  bits.escapes = EqualsAvx2(low, high, kEscape);
  bits.breaks = BitsOfAvx2(_mm256_cmpeq_epi8(_mm256_min_epu8(low, last), low),
                           _mm256_cmpeq_epi8(_mm256_min_epu8(high, last), high));
  return bits;
}

[[gnu::target("avx512bw")]] BlockBits CompareAvx512(const char* at) {
  const __m512i text = _mm512_loadu_si512(at);
  BlockBits bits;
  bits.quotes = _mm512_cmpeq_epi8_mask(text, _mm512_set1_epi8(kQuote));
  bits.outside = _mm512_cmpeq_epi8_mask(text, _mm512_set1_epi8(';')) |
                 _mm512_cmpeq_epi8_mask(text, _mm512_set1_epi8('/'));
  bits.escapes = _mm512_cmpeq_epi8_mask(text, _mm512_set1_epi8(kEscape));
  bits.breaks = _mm512_cmple_epu8_mask(text, _mm512_set1_epi8(kLastBreak));
  return bits;
}

// A product without carries by a number in which all bits are set.
[[gnu::target("pclmul")]] std::uint64_t PrefixXorByProduct(std::uint64_t bits) {
  const __m128i product = _mm_clmulepi64_si128(_mm_cvtsi64_si128(static_cast<std::int64_t>(bits)),
                                               _mm_set1_epi8(-1), 0);
  return static_cast<std::uint64_t>(_mm_cvtsi128_si64(product));
}

const char* FindSse2(const char* at, const char* end) {
  return FindInBlocks(at, end, CompareSse2, PrefixXor);
}

[[gnu::target("avx2,pclmul")]] const char* FindAvx2(const char* at, const char* end) {
  return FindInBlocks(at, end, CompareAvx2, PrefixXorByProduct);
}

[[gnu::target("avx512bw,pclmul")]] const char* FindAvx512(const char* at, const char* end) {
  return FindInBlocks(at, end, CompareAvx512, PrefixXorByProduct);
}

#endif  // KELIFC_HAS_BLOCKS

}  // namespace

const char* FindPlainEndBytewise(const char* at, const char* end) {
  return FindEndFrom(at, end, false);
}

namespace {

struct Candidate {
  PlainEndFinder find;
  bool (*isSupported)();
};

// The fastest one is the first.
constexpr Candidate kCandidates[] = {
#ifdef KELIFC_HAS_BLOCKS
    {FindAvx512,
     [] { return __builtin_cpu_supports("avx512bw") && __builtin_cpu_supports("pclmul"); }},
    {FindAvx2, [] { return __builtin_cpu_supports("avx2") && __builtin_cpu_supports("pclmul"); }},
    {FindSse2, [] { return true; }},
#endif
    {FindPlainEndBytewise, [] { return true; }},
};

const char* ChooseFinder(const char* at, const char* end);

// The function that FindPlainEnd calls. No other memory depends on it.
constinit std::atomic<PlainEndFinder> finder = ChooseFinder;

// The first call chooses the fastest function. All threads choose the same one.
const char* ChooseFinder(const char* at, const char* end) {
  const Candidate* fastest = kCandidates;
  while (!fastest->isSupported()) ++fastest;
  finder.store(fastest->find, std::memory_order_relaxed);
  return fastest->find(at, end);
}

}  // namespace

std::vector<PlainEndFinder> GetPlainEndFinders() {
  std::vector<PlainEndFinder> finders;
  for (const Candidate& candidate : kCandidates) {
    if (candidate.isSupported()) finders.push_back(candidate.find);
  }
  return finders;
}

const char* FindPlainEnd(const char* at, const char* end) {
  return finder.load(std::memory_order_relaxed)(at, end);
}

}  // namespace KelIFC
