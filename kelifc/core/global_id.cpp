#include "kelifc/core/global_id.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace KelIFC {

namespace {

constexpr char kDigits64[] = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_$";
constexpr char kDigits85[] =
    "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz!#$%&^|*+,-./:;<=>?~`@_";
static_assert(sizeof kDigits64 == 64 + 1 && sizeof kDigits85 == 85 + 1);

constexpr std::size_t kLength64 = 22;
constexpr std::size_t kLength85 = 20;

// The value of each character as a digit, -1 for a character outside the alphabet.
using DigitValues = std::array<std::int8_t, 256>;

constexpr DigitValues ValuesOf(const char* alphabet) {
  DigitValues values = {};
  for (std::int8_t& value : values) value = -1;
  for (std::int8_t digit = 0; alphabet[digit] != '\0'; ++digit) {
    values[static_cast<unsigned char>(alphabet[digit])] = digit;
  }
  return values;
}

constexpr DigitValues kValues64 = ValuesOf(kDigits64);
constexpr DigitValues kValues85 = ValuesOf(kDigits85);

int DigitOf(const DigitValues& values, char c) { return values[static_cast<unsigned char>(c)]; }

// An identifier is split into six numbers. The first has two digits, the others have four.
constexpr std::size_t kPieces = 6;
constexpr std::size_t DigitsOfPiece(std::size_t piece) { return piece == 0 ? 2 : 4; }
using Pieces = std::array<std::uint32_t, kPieces>;

Pieces ToPieces(const _GUID& guid) {
  const auto* tail = guid.Data4;
  const auto three = [](std::uint32_t a, std::uint32_t b, std::uint32_t c) {
    return (a << 16) | (b << 8) | c;
  };
  return {guid.Data1 >> 24,
          guid.Data1 & 0xFFFFFF,
          (static_cast<std::uint32_t>(guid.Data2) << 8) | (guid.Data3 >> 8),
          three(guid.Data3 & 0xFF, tail[0], tail[1]),
          three(tail[2], tail[3], tail[4]),
          three(tail[5], tail[6], tail[7])};
}

_GUID FromPieces(const Pieces& pieces) {
  const auto byte = [&pieces](std::size_t piece, int shift) {
    return static_cast<std::uint8_t>(pieces[piece] >> shift);
  };
  _GUID guid = {};
  guid.Data1 = (pieces[0] << 24) + pieces[1];
  guid.Data2 = static_cast<std::uint16_t>(pieces[2] >> 8);
  guid.Data3 = static_cast<std::uint16_t>((byte(2, 0) << 8) + byte(3, 16));
  const std::uint8_t tail[] = {byte(3, 8), byte(3, 0),  byte(4, 16), byte(4, 8),
                               byte(4, 0), byte(5, 16), byte(5, 8),  byte(5, 0)};
  std::copy(std::begin(tail), std::end(tail), guid.Data4);
  return guid;
}

// A number of 128 bits as four words, the most significant first.
using Words = std::array<std::uint32_t, 4>;

// The bytes of the identifier in memory on a little-endian machine, the most significant one first.
// So the low byte of Data1 is the first one.
using Image = std::array<std::uint8_t, 16>;

Image ToImage(const _GUID& guid) {
  Image image;
  for (int i = 0; i < 4; ++i) image[i] = static_cast<std::uint8_t>(guid.Data1 >> (8 * i));
  for (int i = 0; i < 2; ++i) image[4 + i] = static_cast<std::uint8_t>(guid.Data2 >> (8 * i));
  for (int i = 0; i < 2; ++i) image[6 + i] = static_cast<std::uint8_t>(guid.Data3 >> (8 * i));
  std::copy(std::begin(guid.Data4), std::end(guid.Data4), image.begin() + 8);
  return image;
}

_GUID FromImage(const Image& image) {
  _GUID guid = {};
  for (int i = 3; i >= 0; --i) guid.Data1 = (guid.Data1 << 8) | image[i];
  guid.Data2 = static_cast<std::uint16_t>(image[4] | (image[5] << 8));
  guid.Data3 = static_cast<std::uint16_t>(image[6] | (image[7] << 8));
  std::copy(image.begin() + 8, image.end(), guid.Data4);
  return guid;
}

}  // namespace

char* EncodeGlobalId64(const _GUID& guid, char* text, int size) {
  if (text == nullptr || size < static_cast<int>(kLength64) + 1) return nullptr;
  const Pieces pieces = ToPieces(guid);
  char* out = text;
  for (std::size_t piece = 0; piece < kPieces; ++piece) {
    for (std::size_t digit = DigitsOfPiece(piece); digit > 0; --digit) {
      *out++ = kDigits64[(pieces[piece] >> (6 * (digit - 1))) & 63];
    }
  }
  *out = '\0';
  return text;
}

// The NUL is not in the alphabet, so the loop ends at it.
bool IsGlobalId64(const char* text) {
  if (text == nullptr) return false;
  for (std::size_t i = 0; i < kLength64; ++i) {
    if (DigitOf(kValues64, text[i]) < 0) return false;
  }
  return text[kLength64] == '\0';
}

// A character outside the alphabet has a negative value, and so has the union of all values then.
bool DecodeGlobalId64(const char* text, _GUID& guid) {
  if (text == nullptr || std::memchr(text, '\0', kLength64 + 1) != text + kLength64) return false;
  Pieces pieces = {};
  int all = 0;
  for (std::size_t piece = 0; piece < kPieces; ++piece) {
    for (std::size_t i = 0; i < DigitsOfPiece(piece); ++i) {
      const int digit = DigitOf(kValues64, *text++);
      all |= digit;
      pieces[piece] = (pieces[piece] << 6) | static_cast<std::uint32_t>(digit);
    }
  }
  if (all < 0) return false;
  guid = FromPieces(pieces);
  return true;
}

void EncodeBase85(const _GUID& guid, char* text) {
  const Image image = ToImage(guid);
  Words words = {};
  for (std::size_t i = 0; i < image.size(); ++i) words[i / 4] = (words[i / 4] << 8) | image[i];
  for (std::size_t i = kLength85; i > 0; --i) {
    std::uint64_t rest = 0;
    for (std::uint32_t& word : words) {
      const std::uint64_t part = (rest << 32) | word;
      word = static_cast<std::uint32_t>(part / 85);
      rest = part % 85;
    }
    text[i - 1] = kDigits85[rest];
  }
  text[kLength85] = '\0';
}

bool DecodeBase85(const char* text, _GUID& guid) {
  if (text == nullptr || std::memchr(text, '\0', kLength85) != nullptr) return false;
  Words words = {};
  for (std::size_t i = 0; i < kLength85; ++i) {
    std::uint64_t carry = static_cast<std::uint64_t>(std::max(0, DigitOf(kValues85, text[i])));
    for (std::size_t word = words.size(); word > 0; --word) {
      carry += std::uint64_t{words[word - 1]} * 85;
      words[word - 1] = static_cast<std::uint32_t>(carry);
      carry >>= 32;
    }
  }
  Image image;
  for (std::size_t i = 0; i < image.size(); ++i) {
    image[i] = static_cast<std::uint8_t>(words[i / 4] >> (24 - 8 * (i % 4)));
  }
  guid = FromImage(image);
  return true;
}

}  // namespace KelIFC
