#ifndef KELIFC_SERVER_ENTITY_NAME_H_
#define KELIFC_SERVER_ENTITY_NAME_H_

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <type_traits>

#include "kelifc/core/text/ascii.h"

namespace KelIFC {

/// The name of an entity as a part of a text, with the hash by which a NameTable finds it. So
/// several tables can search one name. The characters are not copied. Only the case of the ASCII
/// letters is ignored, independent of the process locale.
class EntityName {
 public:
  /// All names in tables are at most this long.
  static constexpr std::size_t kLongest = 63;

  constexpr EntityName(std::string_view name) : text(name), hash(HashOf(name)) {}

  /// A name that ends with a NUL. Reads at most one character more than kLongest: a longer text
  /// becomes the empty name, which no table has.
  constexpr EntityName(const char* name) : EntityName(Bounded(name)) {}

  constexpr std::string_view GetText() const { return text; }

  /// Returns the same number for names that differ in the case of letters only.
  constexpr std::uint32_t GetHash() const { return hash; }

  /// Returns true if the names are the same apart from their case.
  constexpr bool Is(std::string_view other) const {
    return text.size() == other.size() &&
           (HasSameBytes(text, other) || ascii::IsSameText(text, other));
  }

 private:
  static constexpr std::size_t kWord = sizeof(std::uint64_t);

  static constexpr std::string_view Bounded(const char* name) {
    const char* const end = std::char_traits<char>::find(name, kLongest + 1, '\0');
    if (end == nullptr) return {};
    return {name, static_cast<std::size_t>(end - name)};
  }

  // Eight characters; the first one is the lowest byte.
  static constexpr std::uint64_t WordAt(const char* at) {
    std::uint64_t word = 0;
    if (!std::is_constant_evaluated() && std::endian::native == std::endian::little) {
      std::memcpy(&word, at, kWord);
    } else {
      for (std::size_t i = kWord; i > 0; --i)
        word = word << 8 | static_cast<unsigned char>(at[i - 1]);
    }
    return word;
  }

  // All characters of a name with fewer than eight.
  static constexpr std::uint64_t ShortWord(std::string_view name) {
    std::uint64_t word = 0;
    for (const char c : name) word = word << 8 | static_cast<unsigned char>(c);
    return word;
  }

  // The names of a schema have the same beginning and sometimes the same end. So the hash contains
  // the length and the characters in the middle and at the end.
  static constexpr std::uint32_t HashOf(std::string_view name) {
    constexpr std::uint64_t kCaseOfLetters = 0x2020202020202020;
    const std::size_t length = name.size();
    const bool isShort = length < kWord;
    const std::uint64_t tail = isShort ? ShortWord(name) : WordAt(name.data() + length - kWord);
    const std::uint64_t middle = isShort ? 0 : WordAt(name.data() + (length - kWord) / 2);
    std::uint64_t mixed = (tail & ~kCaseOfLetters) * 0x9E37'79B9'7F4A'7C15;
    mixed = (mixed ^ (mixed >> 32) ^ (middle & ~kCaseOfLetters) ^ length) * 0xC2B2'AE3D'27D4'EB4F;
    return static_cast<std::uint32_t>(mixed >> 32);
  }

  // For two texts of the same length.
  static constexpr bool HasSameBytes(std::string_view a, std::string_view b) {
    if (a.size() < kWord) return a == b;
    const std::size_t last = a.size() - kWord;
    for (std::size_t at = 0; at < last; at += kWord) {
      if (WordAt(a.data() + at) != WordAt(b.data() + at)) return false;
    }
    return WordAt(a.data() + last) == WordAt(b.data() + last);
  }

  std::string_view text;
  std::uint32_t hash;
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_ENTITY_NAME_H_
