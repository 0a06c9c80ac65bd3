#ifndef KELIFC_GEO_DUAL_H_
#define KELIFC_GEO_DUAL_H_

#include <array>

#include "kelifc/platform/com_dispatch.h"
#include "kelifc/platform/com_interfaces.h"
#include "kelifc/platform/com_module.h"
#include "kelifc/platform/com_object.h"

namespace KelIFC {

/// The interfaces of a class of the object model: those of the description, and two that every
/// class has.
template <class... Interfaces>
using DualInterfaces = InterfaceList<Interfaces..., IDispatch, ISupportErrorInfo>;

/// The base of every class of the object model. It has the interfaces of the class, beginning with
/// its own, and the operations that are the same in all classes.
///
/// The four operations of IDispatch need the type library; see com_dispatch.h.
template <class Own, class... Others>
class Dual : public Own, public Others..., public ISupportErrorInfo {
 public:
  using Counted = LiveObject;

  HRESULT GetTypeInfoCount(UINT* count) override { return CountTypeInfo(count); }

  HRESULT GetTypeInfo(UINT index, LCID, ITypeInfo** info) override {
    return GiveTypeInfo(ScriptInterfaces().front(), index, info);
  }

  HRESULT GetIDsOfNames(const IID&, OLECHAR** names, UINT count, LCID, DISPID* ids) override {
    return FindNames(ScriptInterfaces(), names, count, ids);
  }

  HRESULT Invoke(DISPID id, const IID&, LCID, WORD flags, DISPPARAMS* arguments, VARIANT* result,
                 EXCEPINFO* exception, UINT* badArgument) override {
    return InvokeOperation(ScriptInterfaces(), id, flags, arguments, result, exception,
                           badArgument);
  }

  /// Returns S_OK for the interface of the class itself, and S_FALSE for all others.
  HRESULT InterfaceSupportsErrorInfo(const IID& iid) override {
    return iid == IidOf<Own>() ? S_OK : S_FALSE;
  }

 protected:
  ~Dual() = default;

 private:
  /// The interfaces whose operations a script can call. Together they have all operations of the
  /// class.
  std::array<ScriptInterface, 1 + sizeof...(Others)> ScriptInterfaces() {
    return {ScriptInterface{&IidOf<Own>(), static_cast<Own*>(this)},
            ScriptInterface{&IidOf<Others>(), static_cast<Others*>(this)}...};
  }
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_DUAL_H_
