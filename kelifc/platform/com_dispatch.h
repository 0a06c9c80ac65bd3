#ifndef KELIFC_PLATFORM_COM_DISPATCH_H_
#define KELIFC_PLATFORM_COM_DISPATCH_H_

#include <span>

#include "kelifc/platform/com_interfaces.h"
#include "kelifc/platform/com_variant.h"

namespace KelIFC {

// Late binding: script hosts call operations by their names. A script has only one interface of an
// object and cannot query another, so a name is looked up in all interfaces of the class. The type
// library describes the names. Without it, and always off Windows, each of these functions returns
// TYPE_E_LIBNOTREGISTERED.

/// An interface of an object whose operations scripts can call. Lists of them begin with the
/// interface of the class itself.
struct ScriptInterface {
  const IID* iid;
  IDispatch* object;
};

/// Stores 1 if there is type information, otherwise 0. Returns E_POINTER if `count` is null.
HRESULT CountTypeInfo(UINT* count);

/// Stores a counted pointer to the type information of an interface. Returns DISP_E_BADINDEX if
/// `index` is not 0, and E_POINTER if `out` is null.
HRESULT GiveTypeInfo(const ScriptInterface& target, UINT index, ITypeInfo** out);

/// Finds the identifiers of an operation and of its arguments, in the first interface that has the
/// operation. Returns DISP_E_UNKNOWNNAME if none has it.
HRESULT FindNames(std::span<const ScriptInterface> interfaces, OLECHAR** names, UINT count,
                  DISPID* ids);

/// Returns the flags with which an operation is looked up. A script engine sets the method flag
/// alone where it does not use a result, even if the operation is a property; JScript does so for
/// `_NewEnum`, too. So the lookup of a method also finds a property. Flags that set a property are
/// left unchanged.
constexpr WORD LookupFlags(WORD flags) {
  const bool isPut = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
  const bool isMethod = (flags & DISPATCH_METHOD) != 0;
  return static_cast<WORD>(isMethod && !isPut ? flags | DISPATCH_PROPERTYGET : flags);
}

/// Calls the operation of an identifier, in the first interface that has it, with the LookupFlags
/// of `flags`. Returns DISP_E_MEMBERNOTFOUND if none has it. `result` may be null.
HRESULT InvokeOperation(std::span<const ScriptInterface> interfaces, DISPID id, WORD flags,
                        DISPPARAMS* arguments, VARIANT* result, EXCEPINFO* exception,
                        UINT* badArgument);

/// Calls a function of a script, which is the default operation of an object, with two numbers.
/// Stores its result if that is a truth value, and leaves `result` unchanged otherwise.
HRESULT CallFunction(IDispatch& function, double first, double second, VARIANT_BOOL* result);

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_COM_DISPATCH_H_
