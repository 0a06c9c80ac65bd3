#ifndef KELIFC_GEO_DUAL_H_
#define KELIFC_GEO_DUAL_H_

#include "kelifc/platform/com_interfaces.h"
#include "kelifc/platform/com_module.h"
#include "kelifc/platform/com_object.h"

namespace KelIFC {

/// The interfaces of a class of the object model: those described, and what every class has.
template <class... Interfaces>
using DualInterfaces = InterfaceList<Interfaces..., IDispatch, ISupportErrorInfo>;

/// What every class of the object model derives from: its interfaces, the class's own first, with
/// the operations that are the same in all classes.
///
/// The four operations of IDispatch need the type library, which is not registered.
template <class Own, class... Others>
class Dual : public Own, public Others..., public ISupportErrorInfo {
 public:
  using Counted = LiveObject;

  HRESULT GetTypeInfoCount(UINT* count) override {
    if (count == nullptr) return E_POINTER;
    *count = 0;
    return TYPE_E_LIBNOTREGISTERED;
  }

  HRESULT GetTypeInfo(UINT, LCID, ITypeInfo** info) override {
    if (info == nullptr) return E_POINTER;
    *info = nullptr;
    return TYPE_E_LIBNOTREGISTERED;
  }

  HRESULT GetIDsOfNames(const IID&, OLECHAR**, UINT, LCID, DISPID*) override {
    return TYPE_E_LIBNOTREGISTERED;
  }

  HRESULT Invoke(DISPID, const IID&, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                 UINT*) override {
    return TYPE_E_LIBNOTREGISTERED;
  }

  /// S_OK for the class's own interface only.
  HRESULT InterfaceSupportsErrorInfo(const IID& iid) override {
    return iid == IidOf<Own>() ? S_OK : S_FALSE;
  }

 protected:
  ~Dual() = default;
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_DUAL_H_
