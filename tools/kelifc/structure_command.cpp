#include "kelifc/kelifc.h"

#include "tools/kelifc/commands.h"
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
  const auto server = KelIFC::CreateServer();
  IfcServer& model = *KelIFC::GetModel(server.Get());
  LoadConvertible(model, options.model, options.reading);
  Structure structure = ReadStructure(KelIFC::Get(server, &IIFCServer::get_Structure));
  structure.release = ReleaseText(model.GetRelease());
  WriteOutput(options.output,
              options.json ? StructureJson(options.model, structure) : StructureTable(structure));
}

}  // namespace command
