#ifndef TOOLS_KELIFC_TEXT_H_
#define TOOLS_KELIFC_TEXT_H_

#include <string>
#include <string_view>

namespace command {

/// Converts the text of an attribute, in which each byte is an ISO 8859-1 character, to UTF-8.
std::string Utf8FromLatin1(std::string_view text);

/// A text for a terminal or a message: control characters, and bytes that are not UTF-8, are shown
/// as \xNN. So a text of a file cannot move the cursor or change colours.
std::string Visible(std::string_view text);

}  // namespace command

#endif  // TOOLS_KELIFC_TEXT_H_
