#ifndef TOOLS_KELIFC_TEXT_H_
#define TOOLS_KELIFC_TEXT_H_

#include <string>
#include <string_view>

namespace command {

/// Converts the text of an attribute, in which each byte is an ISO 8859-1 character, to UTF-8.
std::string Utf8FromLatin1(std::string_view text);

}  // namespace command

#endif  // TOOLS_KELIFC_TEXT_H_
