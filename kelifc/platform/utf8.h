#ifndef KELIFC_PLATFORM_UTF8_H_
#define KELIFC_PLATFORM_UTF8_H_

#include <string>
#include <string_view>

// UTF-8, for paths, for the text of models and for text that crosses an interface. It is part of
// the lowest folder because all folders use it.

namespace KelIFC {

/// The character that stands for what cannot be read.
inline constexpr char32_t kReplacementCharacter = 0xFFFD;

constexpr bool IsHighSurrogate(char32_t code) { return code >= 0xD800 && code <= 0xDBFF; }
constexpr bool IsLowSurrogate(char32_t code) { return code >= 0xDC00 && code <= 0xDFFF; }

/// True for the codes that text can hold: up to U+10FFFF, and no surrogate.
constexpr bool IsScalarValue(char32_t code) {
  return code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
}

/// Appends a character. A code that is no scalar value is appended as U+FFFD.
void AppendUtf8(std::string& out, char32_t code);

/// Takes the first character off a text that is not empty. Returns false, and leaves `text` and
/// `code` as they are, if the text does not begin with a well-formed sequence.
bool TakeUtf8(std::string_view& text, char32_t& code);

/// True if the whole text is well formed; so is an empty text.
bool IsValidUtf8(std::string_view text);

/// The text of a model as UTF-8: the text itself if the whole of it is well-formed UTF-8. Otherwise
/// each byte is read as the ISO 8859-1 character of that code.
std::string ToUtf8(std::string_view text);

/// The wide form of UTF-8: UTF-16 where a wide character has 16 bits, one wide character for each
/// character elsewhere. A byte that is not part of a well-formed sequence becomes U+FFFD.
std::wstring WideFromUtf8(std::string_view text);

/// The UTF-8 of wide text, which may hold surrogate pairs. A lone surrogate, and any other code
/// that is no character, becomes U+FFFD.
std::string Utf8FromWide(std::wstring_view text);

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_UTF8_H_
