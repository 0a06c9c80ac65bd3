#ifndef KELIFC_SERVER_SCHEMA_TABLE_H_
#define KELIFC_SERVER_SCHEMA_TABLE_H_

#include <string_view>

#include "kelifc/server/release.h"

namespace KelIFC {

/// The release that a schema string of a file's header stands for; IFC_RELEASE_NONE for a string
/// that is not known. Compares exactly and with case.
IFC_RELEASE FindRelease(std::string_view schema);

/// The same for the dialect of ISO 10303-21, in which the case of the letters has no meaning.
/// Blanks at the begin of the string are skipped, and what follows the first word is not looked at:
/// an object identifier may stand there.
IFC_RELEASE FindReleaseInAnyCase(std::string_view schema);

/// True for the schema string of a release that came after those that this library reads, such as
/// IFC4 or IFC4X3_ADD2, in any case.
bool IsLaterSchema(std::string_view schema);

/// The schema string with which a release is saved, "" for IFC_RELEASE_NONE. A release that has two
/// strings is saved with the first one.
std::string_view GetSchemaString(IFC_RELEASE release);

}  // namespace KelIFC

#endif  // KELIFC_SERVER_SCHEMA_TABLE_H_
