#include "tools/kelifc/model_file.h"

#include "tools/kelifc/failure.h"
#include "tools/kelifc/model_source.h"
#include "tools/kelifc/progress.h"
#include "tools/kelifc/text.h"

namespace command {

void LoadModel(KelIFC::IfcServer& server, const std::string& path) {
  const ModelSource source(path);
  ProgressBar bar(source.GetSize());
  if (bar.IsShown()) {
    server.SetProgressHandler([&bar](std::uint64_t done, std::uint64_t total) {
      bar.Update(done, total);
      return true;
    });
  }
  const int code = server.LoadIfcFile(source.GetPath().c_str());
  server.SetProgressHandler(nullptr);
  if (code == KelIFC::LOAD_RESULT_LOADED) return;
  if (code == KelIFC::LOAD_RESULT_CANNOT_OPEN) {
    throw Failure(Status::kFile, path, "the file cannot be opened");
  }
  if (code == KelIFC::LOAD_RESULT_NO_STEP_FILE) {
    throw Failure(Status::kNoModel, path, "not a STEP file");
  }
  const std::string schema = Utf8FromLatin1(server.GetFileSchema());
  throw Failure(Status::kNoModel, path,
                schema.empty() ? "no schema" : "unknown schema '" + schema + "'");
}

const char* ReleaseText(KelIFC::IFC_RELEASE release) {
  switch (release) {
    case KelIFC::IFC_RELEASE_151:
      return "1.5.1";
    case KelIFC::IFC_RELEASE_20:
      return "2.0";
    case KelIFC::IFC_RELEASE_2X:
      return "2x";
    case KelIFC::IFC_RELEASE_2X2:
      return "2x2";
    case KelIFC::IFC_RELEASE_2X3:
      return "2x3";
    case KelIFC::IFC_RELEASE_NONE:
      break;
  }
  return "";
}

}  // namespace command
