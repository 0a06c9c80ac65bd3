#ifndef KELIFC_PLATFORM_COM_DISPATCH_H_
#define KELIFC_PLATFORM_COM_DISPATCH_H_

#include <span>

#include "kelifc/platform/com_interfaces.h"
#include "kelifc/platform/com_variant.h"

namespace KelIFC {

// How script hosts reach an object by the names of its operations. A script holds one interface and
// cannot ask for another, so names are looked up over all interfaces of the class. What stands
// behind a name is told by the library's type library: without it, and off Windows, each of these
// gives TYPE_E_LIBNOTREGISTERED.

/// One interface of an object. The class's own stands first in a row of them.
struct Face {
  const IID* iid;
  IDispatch* object;
};

/// Tells whether there is type information: 1 or 0. A null `count` gives E_POINTER.
HRESULT CountTypeInfo(UINT* count);

/// Gives the type information of an interface, counted. `index` must be 0: DISP_E_BADINDEX; a null
/// `out` gives E_POINTER.
HRESULT GiveTypeInfo(const Face& face, UINT index, ITypeInfo** out);

/// Looks up the name of an operation, and of its arguments, in the first interface that has it.
/// DISP_E_UNKNOWNNAME if none has.
HRESULT FindNames(std::span<const Face> faces, OLECHAR** names, UINT count, DISPID* ids);

/// Returns the flags by which an operation is looked up. A script engine that does not use a result
/// asks for a method even where it reads a property, and some engines always do for `_NewEnum`. So
/// a call of a method finds a property too. Flags that set a property stay as they are.
constexpr WORD LookupFlags(WORD flags) {
  const bool isPut = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
  const bool isMethod = (flags & DISPATCH_METHOD) != 0;
  return static_cast<WORD>(isMethod && !isPut ? flags | DISPATCH_PROPERTYGET : flags);
}

/// Calls the operation of an identifier in the first interface that has it, with LookupFlags of
/// `flags`. Returns DISP_E_MEMBERNOTFOUND if none has. `result` may be null.
HRESULT InvokeFace(std::span<const Face> faces, DISPID id, WORD flags, DISPPARAMS* arguments,
                   VARIANT* result, EXCEPINFO* exception, UINT* badArgument);

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_COM_DISPATCH_H_
