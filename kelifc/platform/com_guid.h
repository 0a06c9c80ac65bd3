#ifndef KELIFC_PLATFORM_COM_GUID_H_
#define KELIFC_PLATFORM_COM_GUID_H_

#include "kelifc/platform/com_types.h"
#include "kelifc/platform/export.h"

#ifdef _WIN32
#include <combaseapi.h>
#else

/// Writes an identifier in its braced form, "{00112233-4455-6677-8899-AABBCCDDEEFF}", and a null
/// character. Gives the number of characters with that one, 39, or 0 if `size` is smaller or `text`
/// null.
KELIFC_API int StringFromGUID2(const GUID& guid, OLECHAR* text, int size);

/// Reads the braced form, in upper or lower case. Anything else gives CO_E_CLASSSTRING and leaves
/// `out` all zero; a null argument gives E_INVALIDARG.
KELIFC_API HRESULT CLSIDFromString(const OLECHAR* text, CLSID* out);

#endif

#endif  // KELIFC_PLATFORM_COM_GUID_H_
