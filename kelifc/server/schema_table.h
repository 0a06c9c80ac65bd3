#ifndef KELIFC_SERVER_SCHEMA_TABLE_H_
#define KELIFC_SERVER_SCHEMA_TABLE_H_

#include <string_view>

#include "kelifc/server/release.h"

namespace KelIFC {

/// Returns the release of a schema string in a file's header, or IFC_RELEASE_NONE for an unknown
/// string. The comparison is exact and case-sensitive.
IFC_RELEASE FindRelease(std::string_view schema);

/// The same for the dialect of ISO 10303-21, which ignores the case of the letters. Blanks at the
/// beginning are skipped, and everything after the first word, such as an object identifier, is
/// ignored.
IFC_RELEASE FindReleaseInAnyCase(std::string_view schema);

/// Returns true for the schema string of a release after those that this library reads, such as
/// IFC4 or IFC4X3_ADD2, in any case.
bool IsLaterSchema(std::string_view schema);

/// Returns the schema string that a save writes for a release, "" for IFC_RELEASE_NONE. If a
/// release has two strings, a save writes the first one.
std::string_view GetSchemaString(IFC_RELEASE release);

}  // namespace KelIFC

#endif  // KELIFC_SERVER_SCHEMA_TABLE_H_
