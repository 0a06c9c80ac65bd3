#include "kelifc/geo/ifc_server_object.h"

#include <string>

#include "kelifc/geo/creation.h"
#include "kelifc/geo/fill.h"
#include "kelifc/geo/load_failure.h"
#include "kelifc/geo/structure.h"
#include "kelifc/platform/com_text.h"

namespace KelIFC {

namespace {

int LoadFile(IfcServer& server, BSTR fileName) {
  const std::string path =
      NarrowPath(fileName == nullptr ? std::wstring_view()
                                     : std::wstring_view(fileName, SysStringLen(fileName)));
  // No file has a null character in its name. The part before it may be the name of another file.
  if (path.find('\0') != std::string::npos) return LOAD_RESULT_CANNOT_OPEN;
  return server.LoadIfcFile(path.c_str());
}

bool IsConvertible(IFC_RELEASE release) {
  return release == IFC_RELEASE_2X || release == IFC_RELEASE_2X2 || release == IFC_RELEASE_2X3;
}

}  // namespace

HRESULT CoIFCServer::Load(BSTR fileName) {
  return Guard([&] {
    const int result = LoadFile(server, fileName);
    if (result == LOAD_RESULT_NO_STEP_FILE || result == LOAD_RESULT_UNKNOWN_SCHEMA) {
      return ReportLoadFailure(LoadFailure::kNoModel, fileName);
    }
    if (result != LOAD_RESULT_LOADED) return ReportLoadFailure(LoadFailure::kNotFound, fileName);
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
