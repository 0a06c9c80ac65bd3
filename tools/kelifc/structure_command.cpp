#include <string>

#include "kelifc/kelifc.h"

#include "tools/kelifc/commands.h"
#include "tools/kelifc/keep_until_exit.h"
#include "tools/kelifc/model_file.h"
#include "tools/kelifc/output.h"
#include "tools/kelifc/structure_format.h"
#include "tools/kelifc/structure_reader.h"

namespace command {
namespace {

using KelIFC::IfcServer;

/// Loads the file with IfcServer instead of IIFCServer::Load, which returns one status for all
/// failures and reports no progress.
void LoadConvertible(IfcServer& model, const std::string& path, const Reading& reading) {
  LoadModel(model, path, reading);
  RequireConvertible(model, path);
}

}  // namespace

void RunStructure(const StructureOptions& options) {
  const KelIFC::LocalClasses classes;  // the command needs no registered library
  KelIFC::ThrowIfFailed(classes.GetStatus());
  const auto& server = KeepUntilExit(KelIFC::CreateServer());
  IfcServer& model = *KelIFC::GetModel(server.Get());
  LoadConvertible(model, options.model, options.reading);
  const auto structure = KelIFC::Get(server, &IIFCServer::get_Structure);
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
