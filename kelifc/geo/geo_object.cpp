#include "kelifc/geo/geo_object.h"

#include <vector>

#include "kelifc/geo/fields.h"
#include "kelifc/geo/fill.h"
#include "kelifc/geo/ifc_server_object.h"
#include "kelifc/geo/sections.h"
#include "kelifc/geo/storey.h"
#include "kelifc/geo/storeys.h"
#include "kelifc/platform/com_guid.h"

namespace KelIFC {

namespace {

constexpr LONG kObjectCode = 4;

/// Fetches a collection from the structure of the server object.
template <class Interface>
HRESULT GetFromStructure(CoIFCServer* server, HRESULT (IGeoStructure::*get)(Interface**),
                         ComPtr<Interface>& collection) {
  if (server == nullptr) return E_POINTER;
  ComPtr<IGeoStructure> structure;
  const HRESULT status = server->get_Structure(structure.Put());
  return FAILED(status) ? status : ((*structure).*get)(collection.Put());
}

}  // namespace

CoGeoObject::~CoGeoObject() = default;

HRESULT CoGeoObject::Reserved1(void*) { return E_NOTIMPL; }
HRESULT CoGeoObject::Reserved2(LONG) { return E_NOTIMPL; }
HRESULT CoGeoObject::Reserved3(void*) { return E_NOTIMPL; }
HRESULT CoGeoObject::Reserved4(void*) { return E_NOTIMPL; }
HRESULT CoGeoObject::Reserved5(void*) { return E_NOTIMPL; }
HRESULT CoGeoObject::Reserved6(void*) { return E_NOTIMPL; }
HRESULT CoGeoObject::Reserved7(LONG) { return E_NOTIMPL; }
HRESULT CoGeoObject::Reserved10(void*) { return E_NOTIMPL; }
HRESULT CoGeoObject::Reserved11(double) { return E_NOTIMPL; }
HRESULT CoGeoObject::Reserved14(void*) { return E_NOTIMPL; }
HRESULT CoGeoObject::Reserved15(SHORT) { return E_NOTIMPL; }
HRESULT CoGeoObject::Reserved16(void*) { return E_NOTIMPL; }
HRESULT CoGeoObject::Reserved17(void*) { return E_NOTIMPL; }
HRESULT CoGeoObject::Reserved18(void*) { return E_NOTIMPL; }
HRESULT CoGeoObject::Reserved20(void*) { return E_NOTIMPL; }
HRESULT CoGeoObject::Reserved23(SHORT) { return E_NOTIMPL; }
HRESULT CoGeoObject::Reserved24(void*) { return E_NOTIMPL; }
HRESULT CoGeoObject::Reserved25(void*) { return E_NOTIMPL; }
HRESULT CoGeoObject::Reserved26(void*) { return E_NOTIMPL; }

HRESULT CoGeoObject::get_GUID(BSTR* out) { return GiveGuid(guid, out); }

HRESULT CoGeoObject::put_GUID(BSTR text) {
  // A null string is the empty text, which is not an identifier.
  const HRESULT status = CLSIDFromString(text == nullptr ? L"" : text, &guid);
  if (FAILED(status)) guid = {};  // the system may have read a part of it
  return status;
}

HRESULT CoGeoObject::get_Name(BSTR* out) { return GiveModelText(name, dialect, out); }
HRESULT CoGeoObject::put_Name(BSTR text) { return PutModelText(text, dialect, &name); }
HRESULT CoGeoObject::get_ObjectCode(LONG* out) { return GetField(kObjectCode, out); }

HRESULT CoGeoObject::get_SectionName(BSTR* out) {
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
  return Guard([&] {
    ComPtr<IGeoSections> sections;
    const HRESULT status = GetFromStructure(server.Get(), &IGeoStructure::get_Sections, sections);
    if (FAILED(status)) return status;
    const auto& items = static_cast<CoGeoSections&>(*sections).Items();
    return sectionIndex < items.size() ? items[sectionIndex]->get_Name(out) : GiveText("", out);
  });
}

HRESULT CoGeoObject::get_StoreyNumber(SHORT* out) {
  if (out == nullptr) return E_POINTER;
  *out = 0;
  return Guard([&] {
    CoIFCServer* const owner = server.Get();
    if (owner != nullptr && storeyNumber) return GetField(*storeyNumber, out);
    const IfcUnknown* instance = owner == nullptr ? nullptr : owner->Model().GetItem(guid);
    if (instance == nullptr) return E_POINTER;
    ComPtr<IGeoStoreys> storeys;
    const HRESULT status = GetFromStructure(owner, &IGeoStructure::get_Storeys, storeys);
    if (FAILED(status)) return status;
    *out = kNoStoreyNumber;
    for (const _GUID& container : ContainingStructures(*instance)) {
      const CoGeoStorey* storey = static_cast<CoGeoStoreys&>(*storeys).Find(container);
      if (storey == nullptr) continue;
      *out = storey->number;
      break;
    }
    return S_OK;
  });
}

}  // namespace KelIFC
