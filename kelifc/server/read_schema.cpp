#include <string>

#include "kelifc/core/aggregate.h"
#include "kelifc/core/lists/value_lists.h"
#include "kelifc/core/step_file_schema.h"
#include "kelifc/server/ifc_server.h"
#include "kelifc/server/iso_statement.h"
#include "kelifc/server/scan_buffer.h"
#include "kelifc/server/schema_table.h"

// From the schema record in the header of a file to the release.

namespace KelIFC {

IFC_RELEASE IfcServer::ReadSchema(const char* statement) {
  schemaRecord->Parse(statement);
  fileSchema.assign(schemaRecord->GetProtocol());
  load.isLaterSchema = IsLaterSchema(fileSchema);
  return FindRelease(fileSchema);
}

// Of several names the first one counts that is known. If none is, the first one of a later release
// does.
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
