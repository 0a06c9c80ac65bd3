#ifndef KELIFC_PLATFORM_COM_ERROR_H_
#define KELIFC_PLATFORM_COM_ERROR_H_

#include "kelifc/platform/com_interfaces.h"

#ifdef _WIN32
#include <oleauto.h>
#else

// The error object: what an operation of this thread last reported in words. It stays until another
// takes its place or somebody fetches it.

/// Gives a new error object to be filled in. Null gives E_INVALIDARG.
KELIFC_API HRESULT CreateErrorInfo(ICreateErrorInfo** out);

/// Makes `error` the thread's error object; null takes it away. `reserved` must be 0.
KELIFC_API HRESULT SetErrorInfo(ULONG reserved, IErrorInfo* error);

/// Gives the thread's error object and takes it away from the thread; null and S_FALSE if there is
/// none. `reserved` must be 0.
KELIFC_API HRESULT GetErrorInfo(ULONG reserved, IErrorInfo** out);

#endif

#endif  // KELIFC_PLATFORM_COM_ERROR_H_
