#ifndef TOOLS_KELIFC_TEXT_H_
#define TOOLS_KELIFC_TEXT_H_

#include <string>
#include <string_view>

namespace command {

/// UTF-8 of attribute text, where each byte is the ISO 8859-1 character of its code.
std::string Utf8FromLatin1(std::string_view text);

/// UTF-8 of text as the object model's interfaces give it. A code that is no character becomes
/// U+FFFD.
std::string Utf8FromWide(std::wstring_view text);

}  // namespace command

#endif  // TOOLS_KELIFC_TEXT_H_
