#include "kelifc/platform/com_dispatch.h"

#ifdef _WIN32

#include <algorithm>
#include <mutex>
#include <vector>

#include "kelifc/platform/com_guard.h"
#include "kelifc/platform/com_ptr.h"
#include "kelifc/platform/com_type_library.h"

namespace KelIFC {

namespace {

/// Caches the type information of interfaces. The cache is never destroyed: at the end of the
/// process the system's libraries may be gone before this one.
class TypeInfoCache {
 public:
  HRESULT Find(const IID& iid, ITypeInfo** out) {
    const std::lock_guard lock(mutex);
    const auto known = std::find_if(entries.begin(), entries.end(),
                                    [&](const Entry& entry) { return entry.iid == iid; });
    if (known != entries.end()) {
      *out = known->info;
      return S_OK;
    }
    const HRESULT status = LoadInfo(iid, out);
    if (SUCCEEDED(status)) entries.push_back({iid, *out});
    return status;
  }

 private:
  struct Entry {
    IID iid;
    ITypeInfo* info;
  };

  HRESULT LoadInfo(const IID& iid, ITypeInfo** out) {
    if (library == nullptr) {
      const HRESULT status = LoadTypeLibrary(&library);
      if (FAILED(status)) return status;
    }
    ComPtr<ITypeInfo> info;
    const HRESULT status = library->GetTypeInfoOfGuid(iid, info.Put());
    return FAILED(status) ? status : GiveInterfaceForm(*info, out);
  }

  /// A dual interface has two forms of type information. Calls need the one with the order of the
  /// operations.
  static HRESULT GiveInterfaceForm(ITypeInfo& info, ITypeInfo** out) {
    TYPEATTR* attributes = nullptr;
    HRESULT status = info.GetTypeAttr(&attributes);
    if (FAILED(status)) return status;
    const bool isDispatchForm = attributes->typekind == TKIND_DISPATCH;
    info.ReleaseTypeAttr(attributes);
    if (!isDispatchForm) {
      info.AddRef();
      *out = &info;
      return S_OK;
    }
    HREFTYPE form = 0;
    status = info.GetRefTypeOfImplType(static_cast<UINT>(-1), &form);
    return FAILED(status) ? status : info.GetRefTypeInfo(form, out);
  }

  std::mutex mutex;
  ITypeLib* library = nullptr;
  std::vector<Entry> entries;
};

HRESULT FindInfo(const ScriptInterface& target, ITypeInfo** out) {
  static auto* const cache = new TypeInfoCache;
  *out = nullptr;
  return Guard([&] { return cache->Find(*target.iid, out); });
}

}  // namespace

HRESULT CountTypeInfo(UINT* count) {
  if (count == nullptr) return E_POINTER;
  *count = 0;
  ComPtr<ITypeLib> library;
  const HRESULT status = LoadTypeLibrary(library.Put());
  if (SUCCEEDED(status)) *count = 1;
  return status;
}

HRESULT GiveTypeInfo(const ScriptInterface& target, UINT index, ITypeInfo** out) {
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
  if (index != 0) return DISP_E_BADINDEX;
  const HRESULT status = FindInfo(target, out);
  if (SUCCEEDED(status)) (*out)->AddRef();
  return status;
}

HRESULT FindNames(std::span<const ScriptInterface> interfaces, OLECHAR** names, UINT count,
                  DISPID* ids) {
  HRESULT status = DISP_E_UNKNOWNNAME;
  for (const ScriptInterface& target : interfaces) {
    ITypeInfo* info = nullptr;
    status = FindInfo(target, &info);
    if (FAILED(status)) return status;
    if (names == nullptr || ids == nullptr) return E_POINTER;
    status = DispGetIDsOfNames(info, names, count, ids);
    if (SUCCEEDED(status)) return status;
  }
  return status;
}

HRESULT InvokeOperation(std::span<const ScriptInterface> interfaces, DISPID id, WORD flags,
                        DISPPARAMS* arguments, VARIANT* result, EXCEPINFO* exception,
                        UINT* badArgument) {
  VARIANT unused = {};  // a property get needs a place for its value
  HRESULT status = DISP_E_MEMBERNOTFOUND;
  for (const ScriptInterface& target : interfaces) {
    ITypeInfo* info = nullptr;
    status = FindInfo(target, &info);
    if (FAILED(status)) return status;
    if (arguments == nullptr) return E_POINTER;
    SetErrorInfo(0, nullptr);  // the error of an earlier call is not the error of this one
    status = DispInvoke(target.object, info, id, LookupFlags(flags), arguments,
                        result == nullptr ? &unused : result, exception, badArgument);
    if (status != DISP_E_MEMBERNOTFOUND) break;
  }
  VariantClear(&unused);
  return status;
}

HRESULT CallFunction(IDispatch& function, double first, double second, VARIANT_BOOL* result) {
  VARIANT arguments[2] = {};  // the last argument comes first
  arguments[0].vt = arguments[1].vt = VT_R8;
  arguments[0].dblVal = second;
  arguments[1].dblVal = first;
  DISPPARAMS parameters = {arguments, nullptr, 2, 0};
  VARIANT value = {};
  const HRESULT status = function.Invoke(DISPID_VALUE, IID{}, LOCALE_USER_DEFAULT, DISPATCH_METHOD,
                                         &parameters, &value, nullptr, nullptr);
  if (SUCCEEDED(status) && value.vt == VT_BOOL) *result = value.boolVal;
  VariantClear(&value);
  return status;
}

}  // namespace KelIFC

#else

namespace KelIFC {

HRESULT CountTypeInfo(UINT* count) {
  if (count == nullptr) return E_POINTER;
  *count = 0;
  return TYPE_E_LIBNOTREGISTERED;
}

HRESULT GiveTypeInfo(const ScriptInterface& /*target*/, UINT /*index*/, ITypeInfo** out) {
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
  return TYPE_E_LIBNOTREGISTERED;
}

HRESULT FindNames(std::span<const ScriptInterface> /*interfaces*/, OLECHAR** /*names*/,
                  UINT /*count*/, DISPID* /*ids*/) {
  return TYPE_E_LIBNOTREGISTERED;
}

HRESULT InvokeOperation(std::span<const ScriptInterface> /*interfaces*/, DISPID /*id*/,
                        WORD /*flags*/, DISPPARAMS* /*arguments*/, VARIANT* /*result*/,
                        EXCEPINFO* /*exception*/, UINT* /*badArgument*/) {
  return TYPE_E_LIBNOTREGISTERED;
}

HRESULT CallFunction(IDispatch& /*function*/, double /*first*/, double /*second*/,
                     VARIANT_BOOL* /*result*/) {
  return TYPE_E_LIBNOTREGISTERED;
}

}  // namespace KelIFC

#endif
