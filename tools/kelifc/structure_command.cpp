#include <cstdint>
#include <string>

#include "kelifc/kelifc.h"

#include "tools/kelifc/commands.h"
#include "tools/kelifc/keep_until_exit.h"
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

void Convert(const KelIFC::ComPtr<IGeoStructure>& structure, std::uint64_t modelSize,
             const Reading& reading) {
  ProgressBar bar("converting", IsLargeFile(modelSize) && AllowsBar(reading));
  ConvertCollections(structure, bar.GetHandler());
}

}  // namespace

void RunStructure(const StructureOptions& options) {
  const KelIFC::LocalClasses classes;  // the command needs no registered library
  KelIFC::ThrowIfFailed(classes.GetStatus());
  const auto& server = KeepUntilExit(KelIFC::CreateServer());
  IfcServer& model = *KelIFC::GetModel(server.Get());
  const ModelSource source = LoadConvertible(model, options.model, options.reading);
  const auto structure = KelIFC::Get(server, &IIFCServer::get_Structure);
  Convert(structure, source.GetSize(), options.reading);
  const std::string release = ReleaseText(model.GetRelease());
  if (options.json) {
    Output output(options.output);
    WriteStructureJson(output, options.model, release, structure);
    output.Close();
  } else {
    Structure values = ReadStructure(structure);
    values.release = release;
    WriteOutput(options.output, StructureTable(values));
  }
}

}  // namespace command
