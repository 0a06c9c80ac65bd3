#ifndef KELIFC_PLATFORM_COM_VARIANT_H_
#define KELIFC_PLATFORM_COM_VARIANT_H_

#include "kelifc/platform/com_string.h"

#ifdef _WIN32
#include <oleauto.h>
#else

/// A VARENUM in the size that a variant stores.
using VARTYPE = std::uint16_t;

/// The type of the value in a variant.
enum VARENUM : VARTYPE {
  VT_EMPTY = 0,
  VT_NULL = 1,
  VT_I2 = 2,        ///< iVal
  VT_I4 = 3,        ///< lVal
  VT_R8 = 5,        ///< dblVal
  VT_BSTR = 8,      ///< bstrVal, owned
  VT_DISPATCH = 9,  ///< pdispVal, counted
  VT_ERROR = 10,    ///< scode
  VT_BOOL = 11,     ///< boolVal
  VT_UNKNOWN = 13,  ///< punkVal, counted
};

/// A value with its type. It owns a string and a reference; VariantClear releases them.
struct VARIANT {
  VARTYPE vt;       ///< decides which member of the union is valid
  WORD wReserved1;  ///< not used
  WORD wReserved2;  ///< not used
  WORD wReserved3;  ///< not used
  union {
    std::int64_t llVal;  ///< the widest member comes first, so that `= {}` clears all of them
    SHORT iVal;
    LONG lVal;
    double dblVal;
    VARIANT_BOOL boolVal;
    SCODE scode;
    BSTR bstrVal;
    IUnknown* punkVal;
    IDispatch* pdispVal;
  };
};

/// Makes an empty variant of memory that was not initialised. Null does nothing.
KELIFC_API void VariantInit(VARIANT* variant);

/// Releases the value and leaves the variant empty. Returns DISP_E_BADVARTYPE and changes nothing
/// if the type is not listed above. Returns E_INVALIDARG for null.
KELIFC_API HRESULT VariantClear(VARIANT* variant);

/// Clears `target` and copies `source` into it; the copy has a string or a reference of its own. On
/// failure `target` is unchanged or empty. Returns E_INVALIDARG if an argument is null.
KELIFC_API HRESULT VariantCopy(VARIANT* target, const VARIANT* source);

/// Clears `target` and stores the value of `source` in it, converted to another type. Both may be
/// the same variant. Numbers, truth values and text can be converted to each other:
///
///  - A number is rounded to the nearest integer, a half to the even one. The result is
///    DISP_E_OVERFLOW if it is out of range.
///  - Text must contain one decimal number; blanks around it are allowed.
///
/// All other conversions return DISP_E_TYPEMISMATCH. On failure `target` is unchanged. `flags` is
/// ignored. Returns E_INVALIDARG if an argument is null.
KELIFC_API HRESULT VariantChangeType(VARIANT* target, const VARIANT* source, USHORT flags,
                                     VARTYPE type);

#endif

#endif  // KELIFC_PLATFORM_COM_VARIANT_H_
