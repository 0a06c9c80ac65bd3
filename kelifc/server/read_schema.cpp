#include <string>

#include "kelifc/core/aggregate.h"
#include "kelifc/core/lists/value_lists.h"
#include "kelifc/core/step_file_schema.h"
#include "kelifc/server/ifc_server.h"
#include "kelifc/server/iso_statement.h"
#include "kelifc/server/scan_buffer.h"
#include "kelifc/server/schema_table.h"

// Finds the release from the schema record in the header of a file.

namespace KelIFC {

IFC_RELEASE IfcServer::ReadSchema(const char* statement) {
  schemaRecord->Parse(statement);
  fileSchema.assign(schemaRecord->GetProtocol());
  load.isLaterSchema = IsLaterSchema(fileSchema);
  return FindRelease(fileSchema);
}

// If there are several names, the first known one counts. If none is known, the first one of a
// later release counts.
IFC_RELEASE IfcServer::ReadIsoSchema(const char* statement) {
  const char* text = load.reader->Read(statement, load.scanner->GetTextEnd());
  schemaRecord->Parse(text);
  fileSchema.assign(schemaRecord->GetProtocol());
  LIST<STRING> names;
  ParseTexts(names, schemaRecord->IfcUnknown::Parse(text));
  for (std::size_t i = 1; i <= names.GetSize(); ++i) {
    const std::string& name = names.GetItem(i);
    const IFC_RELEASE found = FindReleaseInAnyCase(name);
    const bool isFirstLater = !load.isLaterSchema && IsLaterSchema(name);
    if (found != IFC_RELEASE_NONE || isFirstLater) fileSchema = name;
    if (found != IFC_RELEASE_NONE) return found;
    if (isFirstLater) load.isLaterSchema = true;
  }
  return IFC_RELEASE_NONE;
}

}  // namespace KelIFC
