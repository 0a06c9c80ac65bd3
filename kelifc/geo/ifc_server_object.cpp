#include "kelifc/geo/ifc_server_object.h"

#include <string>

#include "kelifc/geo/creation.h"
#include "kelifc/geo/fill.h"
#include "kelifc/geo/load_failure.h"
#include "kelifc/geo/structure.h"
#include "kelifc/platform/com_text.h"

namespace KelIFC {

namespace {

bool IsConvertible(IFC_RELEASE release) {
  return release == IFC_RELEASE_2X || release == IFC_RELEASE_2X2 || release == IFC_RELEASE_2X3;
}

}  // namespace

int CoIFCServer::LoadFile(BSTR fileName) {
  const std::string path =
      NarrowPath(fileName == nullptr ? std::wstring_view()
                                     : std::wstring_view(fileName, SysStringLen(fileName)));
  // No file has a null character in its name. The part before it may be the name of another file.
  if (path.find('\0') != std::string::npos) return LOAD_RESULT_CANNOT_OPEN;
  if (!options) return server.LoadIfcFile(path.c_str());
  isCancelled = false;
  server.SetProgressHandler(
      [this](std::uint64_t done, std::uint64_t total) { return ReportProgress(done, total); });
  const int result = server.LoadIfc(path.c_str(), *options);
  server.SetProgressHandler(nullptr);
  return result;
}

HRESULT CoIFCServer::Load(BSTR fileName) {
  return Guard([&] {
    loadResult = LOAD_RESULT_CANNOT_OPEN;  // also where memory runs out
    completeReading.reset();
    const int result = loadResult = LoadFile(fileName);
    if (result == LOAD_RESULT_CANNOT_OPEN || result == LOAD_RESULT_CANCELLED) {
      return ReportLoadFailure(LoadFailure::kNotFound, fileName);
    }
    if (result != LOAD_RESULT_LOADED) return ReportLoadFailure(LoadFailure::kNoModel, fileName);
    if (IsConvertible(server.GetRelease())) return S_OK;
    return ReportLoadFailure(LoadFailure::kNotConvertible, fileName);
  });
}

HRESULT CoIFCServer::get_Structure(IGeoStructure** out) {
  return GiveChild<CoGeoStructure>(structure, out, [this](CoGeoStructure& made) {
    made.SetServer(Link());
    return S_OK;
  });
}

double CoIFCServer::GetLengthScale() { return LengthScaleOf(server); }

}  // namespace KelIFC
