#ifndef KELIFC_SERVER_TEXT_STREAM_H_
#define KELIFC_SERVER_TEXT_STREAM_H_

#include <algorithm>
#include <cstddef>
#include <ostream>
#include <streambuf>
#include <string>
#include <string_view>

namespace KelIFC {

/// An output stream into memory that can be used again. Other than a string stream, it returns its
/// text without a copy, and keeps its memory when it is cleared.
class TextStream : private std::streambuf, public std::ostream {
 public:
  TextStream() : std::ostream(this) { Clear(); }

  /// Removes the text.
  void Clear() {
    if (text.empty()) text.resize(kFirstSize);
    setp(text.data(), text.data() + text.size() - 1);
  }

  /// Returns the text that was written since the last call of Clear. A NUL follows it. It is valid
  /// until the next write.
  std::string_view GetText() {
    *pptr() = '\0';
    return {pbase(), static_cast<std::size_t>(pptr() - pbase())};
  }

 private:
  // Both base classes have members with these names.
  using traits_type = std::streambuf::traits_type;
  using int_type = std::streambuf::int_type;

  static constexpr std::size_t kFirstSize = 1024;

  int_type overflow(int_type character) override {
    Grow(1);
    if (traits_type::eq_int_type(character, traits_type::eof())) return traits_type::not_eof(0);
    return sputc(traits_type::to_char_type(character));
  }

  std::streamsize xsputn(const char* source, std::streamsize count) override {
    if (count > epptr() - pptr()) Grow(static_cast<std::size_t>(count));
    traits_type::copy(pptr(), source, static_cast<std::size_t>(count));
    Advance(static_cast<std::size_t>(count));
    return count;
  }

  // Allocates memory for so many more characters and the NUL.
  void Grow(std::size_t count) {
    const auto used = static_cast<std::size_t>(pptr() - pbase());
    text.resize(std::max(2 * text.size(), used + count + 1));
    setp(text.data(), text.data() + text.size() - 1);
    Advance(used);
  }

  // Moves the position by more than the standard function can.
  void Advance(std::size_t count) {
    constexpr std::size_t kMost = 1 << 30;
    for (; count > kMost; count -= kMost) pbump(static_cast<int>(kMost));
    pbump(static_cast<int>(count));
  }

  std::string text;
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_TEXT_STREAM_H_
