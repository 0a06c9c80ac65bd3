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

/// The type information of the interfaces that were asked for so far. It stays for the life of the
/// process: at its end the system's own libraries may be gone before this one.
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

  /// A dual interface has two forms; that with the order of the operations is the one to call by.
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

HRESULT FindInfo(const Face& face, ITypeInfo** out) {
  static auto* const cache = new TypeInfoCache;
  *out = nullptr;
  return Guard([&] { return cache->Find(*face.iid, out); });
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

HRESULT GiveTypeInfo(const Face& face, UINT index, ITypeInfo** out) {
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
  if (index != 0) return DISP_E_BADINDEX;
  const HRESULT status = FindInfo(face, out);
  if (SUCCEEDED(status)) (*out)->AddRef();
  return status;
}

HRESULT FindNames(std::span<const Face> faces, OLECHAR** names, UINT count, DISPID* ids) {
  HRESULT status = DISP_E_UNKNOWNNAME;
  for (const Face& face : faces) {
    ITypeInfo* info = nullptr;
    status = FindInfo(face, &info);
    if (FAILED(status)) return status;
    if (names == nullptr || ids == nullptr) return E_POINTER;
    status = DispGetIDsOfNames(info, names, count, ids);
    if (SUCCEEDED(status)) return status;
  }
  return status;
}

HRESULT InvokeFace(std::span<const Face> faces, DISPID id, WORD flags, DISPPARAMS* arguments,
                   VARIANT* result, EXCEPINFO* exception, UINT* badArgument) {
  VARIANT unused = {};  // a property get needs a place for its value even if nobody wants it
  HRESULT status = DISP_E_MEMBERNOTFOUND;
  for (const Face& face : faces) {
    ITypeInfo* info = nullptr;
    status = FindInfo(face, &info);
    if (FAILED(status)) return status;
    if (arguments == nullptr) return E_POINTER;
    SetErrorInfo(0, nullptr);  // what an earlier call reported is not told of this one
    status = DispInvoke(face.object, info, id, LookupFlags(flags), arguments,
                        result == nullptr ? &unused : result, exception, badArgument);
    if (status != DISP_E_MEMBERNOTFOUND) break;
  }
  VariantClear(&unused);
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

HRESULT GiveTypeInfo(const Face& /*face*/, UINT /*index*/, ITypeInfo** out) {
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
  return TYPE_E_LIBNOTREGISTERED;
}

HRESULT FindNames(std::span<const Face> /*faces*/, OLECHAR** /*names*/, UINT /*count*/,
                  DISPID* /*ids*/) {
  return TYPE_E_LIBNOTREGISTERED;
}

HRESULT InvokeFace(std::span<const Face> /*faces*/, DISPID /*id*/, WORD /*flags*/,
                   DISPPARAMS* /*arguments*/, VARIANT* /*result*/, EXCEPINFO* /*exception*/,
                   UINT* /*badArgument*/) {
  return TYPE_E_LIBNOTREGISTERED;
}

}  // namespace KelIFC

#endif
