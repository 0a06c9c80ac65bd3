#include "kelifc/server/statement_text.h"

#include <cstddef>

#include "kelifc/core/unknown.h"
#include "kelifc/core/value.h"
#include "kelifc/server/ifc_server.h"
#include "kelifc/server/iso_statement.h"
#include "kelifc/server/text_stream.h"

namespace KelIFC {

std::string FormatStatement(IfcUnknown& instance) {
  IfcServer* const server = instance.GetServer();
  const std::size_t number = server == nullptr ? 0 : server->Find(&instance);
  TextStream statement;
  if (number != 0) statement << '#' << number << '=';
  instance.Write(statement);
  if (!IsTypedValue(&instance)) statement << ')';  // a typed value writes its own
  statement << ';';
  if (server == nullptr || server->GetDialect() == STEP_DIALECT_CLASSIC) {
    return std::string(statement.GetText());
  }
  TextStream iso;
  WriteIsoStatement(iso, statement.GetText());
  return std::string(iso.GetText());
}

}  // namespace KelIFC
