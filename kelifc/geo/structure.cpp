#include "kelifc/geo/structure.h"

#include "kelifc/geo/creation.h"
#include "kelifc/geo/fields.h"
#include "kelifc/geo/fill.h"
#include "kelifc/geo/reading/fill_complete.h"
#include "kelifc/geo/sections.h"
#include "kelifc/geo/storeys.h"
#include "kelifc/geo/version.h"
#include "kelifc/server/reported_version.h"

namespace KelIFC {

namespace {

/// Stores a child that is not filled.
template <class Class>
HRESULT GiveEmpty(ComPtr<OwnInterface<Class>>& child, OwnInterface<Class>** out,
                  const ServerLink& link) {
  if (CoIFCServer* const server = link.Get()) server->FixReading();
  return GiveChild<Class>(child, out, [](Class&) { return S_OK; });
}

/// Stores a child that is filled from the model, by `fill` or by the complete reading. Without a
/// server object it is not created.
template <class Class, class Fill>
HRESULT GiveFilled(ComPtr<OwnInterface<Class>>& child, OwnInterface<Class>** out,
                   const ServerLink& link, Fill&& fill) {
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
  CoIFCServer* const server = link.Get();
  if (!child && server == nullptr) return E_POINTER;
  if (server != nullptr) server->FixReading();
  return GiveChild<Class>(child, out, [&](Class& made) {
    return server->IsReadingComplete() ? FillComplete(made, *server) : fill(made, *server);
  });
}

/// Stores a collection of the elements of all storeys.
template <class Class>
HRESULT GiveElements(ComPtr<OwnInterface<Class>>& child, OwnInterface<Class>** out,
                     const ServerLink& link, HRESULT (*fill)(Class&, CoIFCServer&, SHORT)) {
  return GiveFilled<Class>(child, out, link, [&](Class& made, CoIFCServer& server) {
    return fill(made, server, kAllStoreys);
  });
}

}  // namespace

HRESULT CoGeoStructure::get_Storeys(IGeoStoreys** out) {
  return GiveFilled<CoGeoStoreys>(storeys, out, server, FillStoreys);
}

HRESULT CoGeoStructure::get_Beams(IGeoBeams** out) {
  return GiveElements<CoGeoBeams>(beams, out, server, FillBeams);
}

HRESULT CoGeoStructure::get_Columns(IGeoColumns** out) {
  return GiveElements<CoGeoColumns>(columns, out, server, FillColumns);
}

HRESULT CoGeoStructure::get_Walls(IGeoWalls** out) {
  return GiveElements<CoGeoWalls>(walls, out, server, FillWalls);
}

HRESULT CoGeoStructure::get_Plates(IGeoPlates** out) {
  return GiveElements<CoGeoPlates>(plates, out, server, FillPlates);
}

HRESULT CoGeoStructure::get_Foots(IGeoFoots** out) {
  return GiveElements<CoGeoFoots>(foots, out, server, FillFoots);
}

HRESULT CoGeoStructure::get_Sections(IGeoSections** out) {
  return GiveEmpty<CoGeoSections>(sections, out, server);
}

HRESULT CoGeoStructure::get_Materials(IGeoMaterials** out) {
  return GiveEmpty<CoGeoMaterials>(materials, out, server);
}

HRESULT CoGeoStructure::get_Objects(IGeoObjects** out) {
  return GiveEmpty<CoGeoObjects>(objects, out, server);
}

HRESULT CoGeoStructure::get_Version(BSTR* out) {
  return Guard([&] { return GiveText(kReportedVersion, out); });
}

HRESULT CoGeoStructure::IsCompatible(BSTR version, VARIANT_BOOL* out) {
  if (out == nullptr) return E_POINTER;
  *out = VARIANT_FALSE;
  return Guard([&] {
    const VersionRecord other = ParseVersionText(NarrowText(version));
    if (KelIFC::IsCompatible(GetOwnVersion(), other)) *out = VARIANT_TRUE;
    return S_OK;
  });
}

}  // namespace KelIFC
