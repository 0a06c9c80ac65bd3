#ifndef KELIFC_CORE_GLOBAL_ID_H_
#define KELIFC_CORE_GLOBAL_ID_H_

#include "kelifc/platform/export.h"
#include "kelifc/platform/guid.h"

// The two text forms of a 128-bit identifier.

namespace KelIFC {

/// Writes the 22 characters of the published schema's form and a NUL into `text`, which has room
/// for `size` characters. Gives `text`, or null if it is null or has room for fewer than 23.
KELIFC_API char* EncodeGlobalId64(const _GUID& guid, char* text, int size);

/// Reads a text of exactly 22 characters. False, with `guid` left alone, for null, for another
/// length and for a character outside the alphabet. Bits beyond 128 are lost.
KELIFC_API bool DecodeGlobalId64(const char* text, _GUID& guid);

/// Writes the 20 characters of the older form and a NUL into `text`.
KELIFC_API void EncodeBase85(const _GUID& guid, char* text);

/// Reads the first 20 characters of a text. A character outside the alphabet counts as 0, and bits
/// beyond 128 are lost. False, with `guid` left alone, for null and for a shorter text.
KELIFC_API bool DecodeBase85(const char* text, _GUID& guid);

}  // namespace KelIFC

#endif  // KELIFC_CORE_GLOBAL_ID_H_
