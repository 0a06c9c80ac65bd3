#ifndef KELIFC_PLATFORM_COM_TEXT_H_
#define KELIFC_PLATFORM_COM_TEXT_H_

#include <string>
#include <string_view>

#include "kelifc/platform/com_string.h"

namespace KelIFC {

// How text crosses an interface. The text of a model is bytes; each byte is the wide character of
// the same code (ISO 8859-1), both ways without loss. The name of a file is UTF-8 off Windows and
// text in the system's ANSI code page on Windows.

/// The bytes of a wide text. A character above 255 becomes '?'; null is the empty text.
KELIFC_API std::string NarrowText(BSTR text);

/// The text as UTF-8. A pair of surrogates is one character. A surrogate without its partner, and a
/// code above 0x10FFFF, become U+FFFD.
KELIFC_API std::string Utf8Text(std::wstring_view text);

/// Gives `text` as a new string. A null `out` gives E_POINTER; without memory `out` is null and the
/// status E_OUTOFMEMORY.
KELIFC_API HRESULT GiveText(std::string_view text, BSTR* out);

/// The narrow form of a path. Off Windows a lone surrogate from U+DC80 to U+DCFF is the byte that
/// its lower half tells, and any other character that UTF-8 cannot hold becomes U+FFFD.
KELIFC_API std::string NarrowPath(std::wstring_view path);

/// The wide form of a path, for NarrowPath to turn back. Off Windows a byte that is no UTF-8
/// becomes a lone surrogate, U+DC00 plus the byte, so that every file can be named.
KELIFC_API std::wstring WidePath(std::string_view path);

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_COM_TEXT_H_
