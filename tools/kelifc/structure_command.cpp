#include "kelifc/kelifc.h"

#include "tools/kelifc/commands.h"
#include "tools/kelifc/failure.h"
#include "tools/kelifc/model_file.h"
#include "tools/kelifc/object_model.h"
#include "tools/kelifc/output.h"
#include "tools/kelifc/structure_format.h"
#include "tools/kelifc/structure_reader.h"

namespace command {
namespace {

using KelIFC::ComPtr;
using KelIFC::IfcServer;

ComPtr<IIFCServer> MakeServer() {
  ComPtr<IIFCServer> server;
  Check(CoCreateInstance(CLSID_CoIFCServer, nullptr, CLSCTX_ALL, KelIFC::IidOf<IIFCServer>(),
                         reinterpret_cast<void**>(server.Put())));
  return server;
}

/// Loads into the model of the server object itself: its own Load has one status for all failures,
/// and tells nobody how far it is.
void LoadConvertible(IfcServer& model, const std::string& path) {
  LoadModel(model, path);
  const KelIFC::IFC_RELEASE release = model.GetRelease();
  if (release < KelIFC::IFC_RELEASE_2X) {
    throw Failure(Status::kNotConvertible, path,
                  std::string("release ") + ReleaseText(release) + " cannot be converted");
  }
}

}  // namespace

void RunStructure(const StructureOptions& options) {
  const KelIFC::LocalClasses classes;  // the command works without an entry in a registry
  Check(classes.GetStatus());
  const ComPtr<IIFCServer> server = MakeServer();
  IfcServer& model = *KelIFC::GetModel(server.Get());
  LoadConvertible(model, options.model);
  Structure structure = ReadStructure(*GetObject(*server, &IIFCServer::get_Structure));
  structure.release = ReleaseText(model.GetRelease());
  WriteOutput(options.output,
              options.json ? StructureJson(options.model, structure) : StructureTable(structure));
}

}  // namespace command
