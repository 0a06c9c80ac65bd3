#include "kelifc/platform/com_factory.h"

#ifndef _WIN32

#include <string_view>
#include <vector>

#include "kelifc/platform/com_class.h"
#include "kelifc/platform/com_guard.h"
#include "kelifc/platform/com_ptr.h"

namespace {

using KelIFC::ComClass;
using KelIFC::ComPtr;

struct Registration {
  DWORD cookie;
  CLSID clsid;
  ComPtr<IUnknown> factory;
};

/// Each thread has registrations of its own, as a COM apartment has.
thread_local std::vector<Registration> registrations;
thread_local DWORD lastCookie = 0;

/// Compares names without regard to the case of letters from A to Z.
bool IsSameName(std::wstring_view a, std::wstring_view b) {
  const auto lower = [](wchar_t c) { return c >= L'A' && c <= L'Z' ? c - L'A' + L'a' : c + 0; };
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (lower(a[i]) != lower(b[i])) return false;
  }
  return true;
}

bool IsNameOf(std::wstring_view name, std::wstring_view progId) {
  return IsSameName(name, progId) || IsSameName(name, progId.substr(0, progId.rfind(L'.')));
}

}  // namespace

HRESULT CLSIDFromProgID(const OLECHAR* progId, CLSID* out) {
  if (progId == nullptr || out == nullptr) return E_INVALIDARG;
  *out = {};
  for (const ComClass& type : KelIFC::ComClasses()) {
    if (!IsNameOf(progId, type.progId)) continue;
    *out = type.clsid;
    return S_OK;
  }
  return CO_E_CLASSSTRING;
}

HRESULT CoGetClassObject(const CLSID& clsid, DWORD context, void* reserved, const IID& iid,
                         void** out) {
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
  if (reserved != nullptr) return E_INVALIDARG;
  if ((context & CLSCTX_INPROC_SERVER) == 0) return REGDB_E_CLASSNOTREG;
  for (const Registration& registration : registrations) {
    if (registration.clsid == clsid) return registration.factory->QueryInterface(iid, out);
  }
  const HRESULT status = KelIFC::GetClassObject(clsid, iid, out);
  return status == CLASS_E_CLASSNOTAVAILABLE ? REGDB_E_CLASSNOTREG : status;
}

HRESULT CoCreateInstance(const CLSID& clsid, IUnknown* outer, DWORD context, const IID& iid,
                         void** out) {
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
  ComPtr<IClassFactory> factory;
  const HRESULT status = CoGetClassObject(clsid, context, nullptr, IClassFactory::kIid,
                                          reinterpret_cast<void**>(factory.Put()));
  return FAILED(status) ? status : factory->CreateInstance(outer, iid, out);
}

HRESULT CoRegisterClassObject(const CLSID& clsid, IUnknown* factory, DWORD /*context*/,
                              DWORD /*flags*/, DWORD* cookie) {
  if (factory == nullptr || cookie == nullptr) return E_INVALIDARG;
  return KelIFC::Guard([&] {
    registrations.insert(registrations.begin(),
                         Registration{lastCookie + 1, clsid, ComPtr<IUnknown>(factory)});
    *cookie = ++lastCookie;
    return S_OK;
  });
}

HRESULT CoRevokeClassObject(DWORD cookie) {
  for (auto at = registrations.begin(); at != registrations.end(); ++at) {
    if (at->cookie != cookie) continue;
    const ComPtr<IUnknown> last = at->factory;  // released after the list is consistent again
    registrations.erase(at);
    return S_OK;
  }
  return CO_E_OBJNOTREG;
}

#endif
