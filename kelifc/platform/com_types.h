#ifndef KELIFC_PLATFORM_COM_TYPES_H_
#define KELIFC_PLATFORM_COM_TYPES_H_

#ifdef _WIN32
#include <windows.h>
#else
#include <cstdint>

#include "kelifc/platform/guid.h"

// The basic types of the Component Object Model. Off Windows they are declared here as types,
// constants and functions with the same names and sizes, so that the same code compiles on all
// systems.

using BOOL = int;
using WORD = std::uint16_t;
using USHORT = std::uint16_t;
using SHORT = std::int16_t;
using DWORD = std::uint32_t;
using ULONG = std::uint32_t;
using LONG = std::int32_t;
using UINT = unsigned int;
using LCID = std::uint32_t;
using DISPID = std::int32_t;
using IID = GUID;
using CLSID = GUID;

/// A character of text at an interface.
using OLECHAR = wchar_t;

/// The status that an operation returns. A negative value is a failure.
using HRESULT = std::int32_t;
using SCODE = HRESULT;

inline constexpr HRESULT S_OK = 0;
inline constexpr HRESULT S_FALSE = 1;
inline constexpr HRESULT E_NOTIMPL = static_cast<HRESULT>(0x80004001U);
inline constexpr HRESULT E_NOINTERFACE = static_cast<HRESULT>(0x80004002U);
inline constexpr HRESULT E_POINTER = static_cast<HRESULT>(0x80004003U);
inline constexpr HRESULT E_FAIL = static_cast<HRESULT>(0x80004005U);
inline constexpr HRESULT DISP_E_TYPEMISMATCH = static_cast<HRESULT>(0x80020005U);
inline constexpr HRESULT DISP_E_BADVARTYPE = static_cast<HRESULT>(0x80020008U);
inline constexpr HRESULT DISP_E_OVERFLOW = static_cast<HRESULT>(0x8002000AU);
inline constexpr HRESULT TYPE_E_LIBNOTREGISTERED = static_cast<HRESULT>(0x8002801DU);
inline constexpr HRESULT STG_E_FILENOTFOUND = static_cast<HRESULT>(0x80030002U);
inline constexpr HRESULT CLASS_E_NOAGGREGATION = static_cast<HRESULT>(0x80040110U);
inline constexpr HRESULT CLASS_E_CLASSNOTAVAILABLE = static_cast<HRESULT>(0x80040111U);
inline constexpr HRESULT REGDB_E_CLASSNOTREG = static_cast<HRESULT>(0x80040154U);
inline constexpr HRESULT CO_E_CLASSSTRING = static_cast<HRESULT>(0x800401F3U);
inline constexpr HRESULT CO_E_OBJNOTREG = static_cast<HRESULT>(0x800401FBU);
inline constexpr HRESULT E_OUTOFMEMORY = static_cast<HRESULT>(0x8007000EU);
inline constexpr HRESULT E_INVALIDARG = static_cast<HRESULT>(0x80070057U);

constexpr bool SUCCEEDED(HRESULT status) { return status >= 0; }
constexpr bool FAILED(HRESULT status) { return status < 0; }

/// A truth value at an interface: -1 is true, 0 is false.
using VARIANT_BOOL = std::int16_t;
inline constexpr VARIANT_BOOL VARIANT_TRUE = -1;
inline constexpr VARIANT_BOOL VARIANT_FALSE = 0;

/// Where an object may live, as bits. Off Windows objects live in the process only.
enum CLSCTX : DWORD {
  CLSCTX_INPROC_SERVER = 1,
  CLSCTX_INPROC_HANDLER = 2,
  CLSCTX_LOCAL_SERVER = 4,
  CLSCTX_REMOTE_SERVER = 16,
};
inline constexpr DWORD CLSCTX_SERVER = 21;
inline constexpr DWORD CLSCTX_ALL = 23;

#endif

#endif  // KELIFC_PLATFORM_COM_TYPES_H_
