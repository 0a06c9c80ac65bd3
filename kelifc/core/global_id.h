#ifndef KELIFC_CORE_GLOBAL_ID_H_
#define KELIFC_CORE_GLOBAL_ID_H_

#include "kelifc/platform/export.h"
#include "kelifc/platform/guid.h"

// The two text forms of a 128-bit identifier.

namespace KelIFC {

/// Writes the 22 characters of the published schema's form and a NUL to `text`, which has room for
/// `size` characters. Returns `text`, or null if `text` is null or has room for fewer than 23
/// characters.
KELIFC_API char* EncodeGlobalId64(const _GUID& guid, char* text, int size);

/// Decodes a text of exactly 22 characters. Returns false, and does not change `guid`, for null,
/// for another length and for a character outside the alphabet. Bits above the 128th are ignored.
KELIFC_API bool DecodeGlobalId64(const char* text, _GUID& guid);

/// Returns true for a text that DecodeGlobalId64 can decode.
KELIFC_API bool IsGlobalId64(const char* text);

/// Writes the 20 characters of the older form and a NUL to `text`, which has room for 21
/// characters.
KELIFC_API void EncodeBase85(const _GUID& guid, char* text);

/// Decodes the first 20 characters of a text. A character outside the alphabet counts as 0, and
/// bits above the 128th are ignored. Returns false, and does not change `guid`, for null and for a
/// shorter text.
KELIFC_API bool DecodeBase85(const char* text, _GUID& guid);

}  // namespace KelIFC

#endif  // KELIFC_CORE_GLOBAL_ID_H_
