#ifndef EXPORT_TEXT_H_
#define EXPORT_TEXT_H_

#include <string>
#include <string_view>

#include "kelifc/server/release.h"

namespace KelIFC::exporting {

/// Appends a number in the shortest decimal form that reads as the same double. Appends nothing for
/// a value that is not finite.
void AppendNumber(std::string& text, double value);

/// Appends a number rounded to `decimals` digits after the point (at most 12), without trailing
/// zeros and without the sign of a negative zero. Appends nothing for a value that is not finite.
void AppendRounded(std::string& text, double value, int decimals);

/// The text as valid UTF-8: each byte that is not part of a valid sequence becomes U+FFFD.
std::string ValidUtf8(std::string_view text);

/// The text for an XML or HTML document: the characters & < > " ' are escaped. Control characters
/// that XML does not allow, and bytes that are not UTF-8, become U+FFFD.
std::string XmlText(std::string_view text);

/// A letter from A to Z in lower case; any other byte is returned as it is.
char LowerCase(char c);

/// A name reduced to the characters A-Z a-z 0-9 _ - and to 40 of them; all others become "-". It is
/// "unnamed" for an empty name.
std::string FileNamePart(std::string_view name);

/// "1.5.1", "2.0", "2x", "2x2" or "2x3". "" for IFC_RELEASE_NONE.
const char* ReleaseText(IFC_RELEASE release);

}  // namespace KelIFC::exporting

#endif  // EXPORT_TEXT_H_
