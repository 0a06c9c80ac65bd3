#include "fuzz/source_statements.h"

#include <memory>
#include <sstream>

#include "kelifc/core/step_file_schema.h"
#include "kelifc/server/ifc_server.h"
#include "kelifc/server/scanner.h"

namespace fuzz {

std::vector<std::string> StatementsAfterSchema(std::string_view text) {
  KelIFC::IfcServer names;
  std::istringstream in{std::string(text)};
  KelIFC::IsoScanner scanner(in);
  std::vector<std::string> statements;
  bool isAfter = false;
  while (const char* statement = scanner.Next()) {
    if (isAfter) {
      statements.emplace_back(statement, scanner.GetLength());
    } else {
      const std::unique_ptr<KelIFC::IfcUnknown> made(names.ParseClass(statement, nullptr));
      isAfter = dynamic_cast<KelIFC::StepFileSchema*>(made.get()) != nullptr;
    }
  }
  return statements;
}

}  // namespace fuzz
