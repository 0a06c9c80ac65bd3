#ifndef KELIFC_PLATFORM_COM_TEXT_H_
#define KELIFC_PLATFORM_COM_TEXT_H_

#include <string>
#include <string_view>

#include "kelifc/platform/com_string.h"

namespace KelIFC {

// Text at the interfaces. The text of a model consists of bytes. Each byte becomes the wide
// character with the same code (ISO 8859-1) and back, without loss. The name of a file is in UTF-8,
// on Windows in the system's ANSI code page.

/// Returns the bytes of a wide text. A character above 255 becomes '?'. Null is the empty text.
KELIFC_API std::string NarrowText(BSTR text);

/// The text as UTF-8. A pair of surrogates is one character. A surrogate without its partner, and a
/// code above 0x10FFFF, become U+FFFD.
KELIFC_API std::string Utf8Text(std::wstring_view text);

/// Stores `text` as a new string, which the caller frees. Returns E_POINTER if `out` is null.
/// Stores null and returns E_OUTOFMEMORY if there is no memory.
KELIFC_API HRESULT GiveText(std::string_view text, BSTR* out);

/// The same for UTF-8. A text that is not well-formed UTF-8 is read as GiveText reads it. Throws
/// std::bad_alloc if there is no memory for the conversion.
KELIFC_API HRESULT GiveUtf8Text(std::string_view text, BSTR* out);

/// Returns the narrow form of a path. Off Windows a lone surrogate from U+DC80 to U+DCFF becomes
/// the byte that WidePath made it from. Any other character that UTF-8 cannot encode becomes
/// U+FFFD.
KELIFC_API std::string NarrowPath(std::wstring_view path);

/// Returns the wide form of a path, which NarrowPath converts back. Off Windows a byte that is not
/// part of valid UTF-8 becomes a lone surrogate, U+DC00 plus the byte. So every file name has a
/// wide form.
KELIFC_API std::wstring WidePath(std::string_view path);

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_COM_TEXT_H_
