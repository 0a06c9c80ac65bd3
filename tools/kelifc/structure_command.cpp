#include <cstdint>

#include "kelifc/kelifc.h"

#include "tools/kelifc/commands.h"
#include "tools/kelifc/model_file.h"
#include "tools/kelifc/output.h"
#include "tools/kelifc/progress.h"
#include "tools/kelifc/structure_format.h"
#include "tools/kelifc/structure_reader.h"

namespace command {
namespace {

using KelIFC::IfcServer;

/// Loads the file with IfcServer instead of IIFCServer::Load, which returns one status for all
/// failures and reports no progress.
ModelSource LoadConvertible(IfcServer& model, const std::string& path, const Reading& reading) {
  ModelSource source = LoadModel(model, path, reading);
  RequireConvertible(model, path);
  return source;
}

Structure ConvertWithProgress(const KelIFC::ComPtr<IIFCServer>& server, std::uint64_t modelSize,
                              const Reading& reading) {
  ProgressBar bar("converting", IsLargeFile(modelSize) && AllowsBar(reading));
  return ReadStructure(KelIFC::Get(server, &IIFCServer::get_Structure), bar.GetHandler());
}

}  // namespace

void RunStructure(const StructureOptions& options) {
  const KelIFC::LocalClasses classes;  // the command needs no registered library
  KelIFC::ThrowIfFailed(classes.GetStatus());
  const auto server = KelIFC::CreateServer();
  IfcServer& model = *KelIFC::GetModel(server.Get());
  const ModelSource source = LoadConvertible(model, options.model, options.reading);
  Structure structure = ConvertWithProgress(server, source.GetSize(), options.reading);
  structure.release = ReleaseText(model.GetRelease());
  WriteOutput(options.output,
              options.json ? StructureJson(options.model, structure) : StructureTable(structure));
}

}  // namespace command
