#ifndef KELIFC_PLATFORM_COM_GUID_H_
#define KELIFC_PLATFORM_COM_GUID_H_

#include "kelifc/platform/com_types.h"
#include "kelifc/platform/export.h"

#ifdef _WIN32
#include <combaseapi.h>
#else

/// Writes an identifier in braces, such as "{00112233-4455-6677-8899-AABBCCDDEEFF}", and a null
/// character. Returns the number of characters written, 39. Returns 0 and writes nothing if `size`
/// is below 39 or `text` is null.
KELIFC_API int StringFromGUID2(const GUID& guid, OLECHAR* text, int size);

/// Reads an identifier in braces. Digits may be in upper or lower case. For any other text the
/// function stores the null identifier and returns CO_E_CLASSSTRING. Returns E_INVALIDARG if an
/// argument is null.
KELIFC_API HRESULT CLSIDFromString(const OLECHAR* text, CLSID* out);

#endif

#endif  // KELIFC_PLATFORM_COM_GUID_H_
