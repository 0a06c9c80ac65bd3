#include "kelifc/core/detail/text_out.h"

#include <array>
#include <bit>
#include <charconv>

#include "kelifc/core/text/ascii.h"

namespace KelIFC::detail {

namespace {

constexpr std::array<std::uint32_t, 10> kPowersOfTen = {
    0, 10, 100, 1'000, 10'000, 100'000, 1'000'000, 10'000'000, 100'000'000, 1'000'000'000};

// The number of digits of a number. A digit takes 3.32 bits, so the bits leave two possible counts.
std::size_t CountDigits(std::uint32_t number) {
  const auto bits = static_cast<std::size_t>(std::bit_width(number));
  const std::size_t atLeast = bits * 1233 >> 12;
  return atLeast + (number >= kPowersOfTen[atLeast] ? 1 : 0);
}

constexpr auto kPairsOfDigits = [] {
  std::array<char, 200> pairs = {};
  for (std::size_t i = 0; i < pairs.size(); ++i) {
    pairs[i] = static_cast<char>('0' + (i % 2 == 0 ? i / 20 : i / 2 % 10));
  }
  return pairs;
}();

// Writes a number in decimal and returns its end. The numbers of nearly all instances have 32 bits.
char* FormatNumber(std::uint64_t number, char* text) {
  if (number > UINT32_MAX) return std::to_chars(text, text + kNumberTextSize, number).ptr;
  auto rest = static_cast<std::uint32_t>(number);
  char* const end = text + CountDigits(rest);
  char* at = end;
  for (; rest >= 10; rest /= 100) {
    at -= 2;
    std::memcpy(at, &kPairsOfDigits[2 * std::size_t{rest % 100}], 2);
  }
  if (at != text) *text = static_cast<char>('0' + rest);
  return end;
}

// Changes the letters a to z among eight characters to upper case. In each byte, one of the two
// sums has its upper bit set for a letter, and both or none have it for any other ASCII character.
std::uint64_t ToUpper(std::uint64_t characters) {
  constexpr std::uint64_t kEach = 0x0101010101010101;
  const std::uint64_t lowBits = characters & (kEach * 0x7F);
  const std::uint64_t fromA = lowBits + kEach * (0x80 - 'a');
  const std::uint64_t behindZ = lowBits + kEach * (0x7F - 'z');
  const std::uint64_t isLower = (fromA ^ behindZ) & ~characters & (kEach * 0x80);
  return characters - (isLower >> 2);
}

// Copies a text in upper case and returns the end of the copy.
char* CopyUpperCase(std::string_view text, char* out) {
  constexpr std::size_t kWord = sizeof(std::uint64_t);
  for (; text.size() >= kWord; text.remove_prefix(kWord), out += kWord) {
    std::uint64_t word = 0;
    std::memcpy(&word, text.data(), kWord);
    word = ToUpper(word);
    std::memcpy(out, &word, kWord);
  }
  for (const char c : text) *out++ = ascii::ToUpperCase(c);
  return out;
}

}  // namespace

void PutThrough(std::ostream& out, std::string_view text) {
  if (!out.good()) return;
  const auto length = static_cast<std::streamsize>(text.size());
  if (out.rdbuf()->sputn(text.data(), length) != length) out.setstate(std::ios::badbit);
}

void PutNumber(std::ostream& out, std::uint64_t number) {
  PutPiece<kNumberTextSize>(out, [number](char* text) { return FormatNumber(number, text); });
}

void PutNumber(std::ostream& out, std::int64_t number) {
  const auto bits = static_cast<std::uint64_t>(number);
  if (number >= 0) return PutNumber(out, bits);
  PutPiece<kNumberTextSize>(out, [bits](char* text) {
    *text = '-';
    return FormatNumber(0 - bits, text + 1);
  });
}

void PutReference(std::ostream& out, std::uint64_t number, char last) {
  PutPiece<kNumberTextSize + 2>(out, [number, last](char* text) {
    *text = '#';
    char* end = FormatNumber(number, text + 1);
    if (last != '\0') *end++ = last;
    return end;
  });
}

void PutUpperCase(std::ostream& out, std::string_view text, char last) {
  constexpr std::size_t kPiece = 128;
  for (; text.size() >= kPiece; text.remove_prefix(kPiece)) {
    PutPiece<kPiece>(out,
                     [text](char* piece) { return CopyUpperCase(text.substr(0, kPiece), piece); });
  }
  PutPiece<kPiece>(out, [text, last](char* piece) {
    char* const end = CopyUpperCase(text, piece);
    *end = last;
    return end + 1;
  });
}

}  // namespace KelIFC::detail
