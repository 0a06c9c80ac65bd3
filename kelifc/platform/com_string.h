#ifndef KELIFC_PLATFORM_COM_STRING_H_
#define KELIFC_PLATFORM_COM_STRING_H_

#include "kelifc/platform/com_interfaces.h"

#ifdef _WIN32
#include <oleauto.h>
#else

// Automation strings: wide text that knows its length and ends with a null character behind it.
// The text may hold null characters. A null BSTR stands for the empty text.

/// A new string with a copy of the text up to its null character; null for null, or if there is no
/// memory. Give it back with SysFreeString.
KELIFC_API BSTR SysAllocString(const OLECHAR* text);

/// A new string of `length` characters; with a null `text` they are not set.
KELIFC_API BSTR SysAllocStringLen(const OLECHAR* text, UINT length);

/// Gives a string back; null does nothing.
KELIFC_API void SysFreeString(BSTR string);

/// The number of characters; 0 for null.
KELIFC_API UINT SysStringLen(BSTR string);

#endif

#endif  // KELIFC_PLATFORM_COM_STRING_H_
