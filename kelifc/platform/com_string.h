#ifndef KELIFC_PLATFORM_COM_STRING_H_
#define KELIFC_PLATFORM_COM_STRING_H_

#include "kelifc/platform/com_interfaces.h"

#ifdef _WIN32
#include <oleauto.h>
#else

// Automation strings: wide text with its length. A null character follows the text, and the text
// itself may contain null characters. A null BSTR means the empty text.

/// Copies the text up to its null character. Returns null if `text` is null or there is no memory.
/// The caller frees the string with SysFreeString.
KELIFC_API BSTR SysAllocString(const OLECHAR* text);

/// Creates a string of `length` characters. If `text` is null, the characters are not initialised.
/// Returns null if there is no memory.
KELIFC_API BSTR SysAllocStringLen(const OLECHAR* text, UINT length);

/// Frees a string. Null does nothing.
KELIFC_API void SysFreeString(BSTR string);

/// Returns the number of characters, 0 for null.
KELIFC_API UINT SysStringLen(BSTR string);

#endif

#endif  // KELIFC_PLATFORM_COM_STRING_H_
