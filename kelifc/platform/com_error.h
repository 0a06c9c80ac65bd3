#ifndef KELIFC_PLATFORM_COM_ERROR_H_
#define KELIFC_PLATFORM_COM_ERROR_H_

#include "kelifc/platform/com_interfaces.h"

#ifdef _WIN32
#include <oleauto.h>
#else

// The error object of a thread: a text about the last failure. It stays until another error object
// replaces it or GetErrorInfo fetches it.

/// Creates an empty error object. Returns E_INVALIDARG if `out` is null.
KELIFC_API HRESULT CreateErrorInfo(ICreateErrorInfo** out);

/// Makes `error` the error object of the thread. Null removes the present one. Returns E_INVALIDARG
/// if `reserved` is not 0.
KELIFC_API HRESULT SetErrorInfo(ULONG reserved, IErrorInfo* error);

/// Removes the error object from the thread and stores it. Stores null and returns S_FALSE if there
/// is none. Returns E_INVALIDARG if `reserved` is not 0 or `out` is null.
KELIFC_API HRESULT GetErrorInfo(ULONG reserved, IErrorInfo** out);

#endif

#endif  // KELIFC_PLATFORM_COM_ERROR_H_
