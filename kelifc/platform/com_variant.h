#ifndef KELIFC_PLATFORM_COM_VARIANT_H_
#define KELIFC_PLATFORM_COM_VARIANT_H_

#include "kelifc/platform/com_string.h"

#ifdef _WIN32
#include <oleauto.h>
#else

using VARTYPE = std::uint16_t;

/// What a variant holds.
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

/// A value that tells its own type. It owns what it holds; VariantClear ends it.
struct VARIANT {
  VARTYPE vt;
  WORD wReserved1;
  WORD wReserved2;
  WORD wReserved3;
  union {
    std::int64_t llVal;  ///< the widest member stands first, so that `= {}` clears all of them
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

/// Makes fresh memory an empty variant. Null does nothing.
KELIFC_API void VariantInit(VARIANT* variant);

/// Gives back what a variant holds and leaves it empty. A type that is not listed above gives
/// DISP_E_BADVARTYPE and leaves the variant as it is; null gives E_INVALIDARG.
KELIFC_API HRESULT VariantClear(VARIANT* variant);

/// Clears `target` and makes it a copy with its own string or count. On failure `target` is left
/// as it was or empty.
KELIFC_API HRESULT VariantCopy(VARIANT* target, const VARIANT* source);

/// Clears `target` and makes it `source` turned into another type; both may be the same. Between
/// numbers, truth values and text: a number is rounded to the nearest whole one, the even one of
/// two, and DISP_E_OVERFLOW tells that it does not fit; text must be one decimal number, blanks
/// around it aside. What cannot be turned gives DISP_E_TYPEMISMATCH. On failure `target` is left
/// as it was. `flags` is not used.
KELIFC_API HRESULT VariantChangeType(VARIANT* target, const VARIANT* source, USHORT flags,
                                     VARTYPE type);

#endif

#endif  // KELIFC_PLATFORM_COM_VARIANT_H_
