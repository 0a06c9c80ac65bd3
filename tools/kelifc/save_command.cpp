#include <string>

#include "kelifc/kelifc.h"

#include "tools/kelifc/commands.h"
#include "tools/kelifc/failure.h"
#include "tools/kelifc/model_file.h"

namespace command {

void RunSave(const SaveOptions& options) {
  KelIFC::IfcServer server;
  LoadModel(server, options.model);
  std::string failure;  // the first report; the others are consequences of it
  server.SetErrorHandler([&failure](const std::string& message) {
    if (failure.empty()) failure = message;
  });
  if (server.SaveIfcFile(options.output.c_str()) != 0 || !failure.empty()) {
    throw Failure(Status::kFile, failure);
  }
}

}  // namespace command
