#include "tools/kelifc/model_file.h"

#include <memory>
#include <utility>

#include "tools/kelifc/failure.h"
#include "tools/kelifc/keep_until_exit.h"
#include "tools/kelifc/model_source.h"
#include "tools/kelifc/progress.h"
#include "tools/kelifc/text.h"

namespace command {

namespace {

using KelIFC::IfcServer;
using KelIFC::LoadOptions;

constexpr const char* kIso = "iso";

LoadOptions OptionsOf(const Reading& reading) {
  LoadOptions options;
  options.dialect =
      reading.dialect == kIso ? KelIFC::STEP_DIALECT_ISO : KelIFC::STEP_DIALECT_CLASSIC;
  options.threads = reading.threads;
  return options;
}

}  // namespace

std::string CauseOf(int code, const std::string& schema) {
  switch (code) {
    case KelIFC::LOAD_RESULT_NO_STEP_FILE:
      return "not a STEP file";
    case KelIFC::LOAD_RESULT_LIMIT_REACHED:
      return "the model exceeds a limit";
    case KelIFC::LOAD_RESULT_UNSUPPORTED_RELEASE:
      return "the release " + schema + " is not supported";
    default:
      return schema.empty() ? "no schema" : "unknown schema '" + schema + "'";
  }
}

namespace {

/// Calls `load` with the path of an ordinary file, and throws if it does not return 0. Returns the
/// source of that file.
template <class Load>
ModelSource LoadWithProgress(IfcServer& server, const std::string& path, const Reading& reading,
                             Load load) {
  ModelSource source(path);
  ProgressBar bar("reading", IsLargeFile(source.GetSize()) && AllowsBar(reading));
  server.SetProgressHandler(bar.GetHandler());
  const int code = load(source.GetPath().c_str());
  server.SetProgressHandler(nullptr);
  ThrowIfInterrupted();
  if (code == KelIFC::LOAD_RESULT_LOADED) return source;
  if (code == KelIFC::LOAD_RESULT_CANNOT_OPEN) {
    throw Failure(Status::kFile, path, "the file cannot be opened");
  }
  throw Failure(Status::kNoModel, path,
                CauseOf(code, Utf8FromModel(server, server.GetFileSchema())));
}

}  // namespace

ModelSource LoadModel(IfcServer& server, const std::string& path, const Reading& reading) {
  return LoadWithProgress(server, path, reading, [&](const char* file) {
    LoadOptions options = OptionsOf(reading);
    if (options.dialect == KelIFC::STEP_DIALECT_ISO) return server.LoadIfc(file, options);
    options.limits = {0, 0, 0, 0};
    options.report = false;
    const int code = server.LoadIfc(file, options);
    const bool isLater = code == KelIFC::LOAD_RESULT_UNSUPPORTED_RELEASE;
    return isLater ? static_cast<int>(KelIFC::LOAD_RESULT_UNKNOWN_SCHEMA) : code;
  });
}

void LoadModelWithReport(IfcServer& server, const std::string& path, const Reading& reading) {
  LoadWithProgress(server, path, reading, [&](const char* file) {
    const int code = server.LoadIfc(file, OptionsOf(reading));
    if (code != KelIFC::LOAD_RESULT_LOADED || server.CheckModel()) return code;
    if (server.GetLoadReport().hasSourceChanged) {
      throw Failure(Status::kFile, path, "the file changed while it was read");
    }
    return static_cast<int>(KelIFC::LOAD_RESULT_CANNOT_OPEN);  // the file is gone meanwhile
  });
}

void RequireConvertible(KelIFC::IfcServer& server, const std::string& path) {
  const KelIFC::IFC_RELEASE release = server.GetRelease();
  if (release >= KelIFC::IFC_RELEASE_2X) return;
  throw Failure(Status::kNotConvertible, path,
                std::string("release ") + ReleaseText(release) + " cannot be converted");
}

KelIFC::Building LoadBuilding(const std::string& path, const Reading& reading,
                              KelIFC::KeptBodies keptBodies, ReadModel model) {
  auto owner = std::make_unique<IfcServer>();
  IfcServer& server = *owner;
  if (model == ReadModel::kKeptUntilExit) KeepUntilExit(std::move(owner));
  const ModelSource source = LoadWithProgress(server, path, reading, [&](const char* file) {
    LoadOptions options = OptionsOf(reading);
    options.keepUnknown = true;  // the reading knows entities that have no class
    return server.LoadIfc(file, options);
  });
  RequireConvertible(server, path);
  KelIFC::ReadingOptions options;
  options.keptBodies = keptBodies;
  ProgressBar bar("converting", IsLargeFile(source.GetSize()) && AllowsBar(reading));
  options.progress = bar.GetHandler();
  return KelIFC::ReadBuilding(server, options);
}

std::string Utf8FromModel(const IfcServer& server, std::string_view text) {
  return server.GetDialect() == KelIFC::STEP_DIALECT_ISO ? std::string(text) : Utf8FromLatin1(text);
}

}  // namespace command
