#include <string>

#include "kelifc/kelifc.h"

#include "tools/kelifc/commands.h"
#include "tools/kelifc/failure.h"
#include "tools/kelifc/model_file.h"
#include "tools/kelifc/progress.h"

namespace command {

void RunSave(const SaveOptions& options) {
  KelIFC::IfcServer server;
  const ModelSource source = LoadModel(server, options.model, options.reading);
  std::string failure;
  server.SetErrorHandler([&failure](const std::string& message) { failure = message; });
  KelIFC::SaveOptions saving;
  saving.faithful = options.faithful;
  saving.threads = options.reading.threads;
  ProgressBar bar("writing", IsLargeFile(source.GetSize()) && AllowsBar(options.reading));
  saving.progress = bar.GetHandler();
  if (server.SaveIfc(options.output.c_str(), saving) != KelIFC::SAVE_RESULT_SAVED) {
    throw Failure(Status::kFile, failure);
  }
}

}  // namespace command
