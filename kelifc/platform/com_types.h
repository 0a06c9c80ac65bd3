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

using BOOL = int;              ///< a truth value; 0 is false
using WORD = std::uint16_t;    ///< 16 bits without a sign
using USHORT = std::uint16_t;  ///< 16 bits without a sign
using SHORT = std::int16_t;    ///< 16 bits with a sign
using DWORD = std::uint32_t;   ///< 32 bits without a sign
using ULONG = std::uint32_t;   ///< 32 bits without a sign
using LONG = std::int32_t;     ///< 32 bits with a sign
using UINT = unsigned int;     ///< a number of elements, or an index
using LCID = std::uint32_t;    ///< identifies a language and region; the library ignores it
using DISPID = std::int32_t;   ///< identifies an operation or an argument in late binding
using IID = GUID;              ///< identifies an interface
using CLSID = GUID;            ///< identifies a class of objects

/// A character of text at an interface.
using OLECHAR = wchar_t;

/// The status that an operation returns. A negative value is a failure.
using HRESULT = std::int32_t;
using SCODE = HRESULT;  ///< the type of a status in a variant

/// Success.
inline constexpr HRESULT S_OK = 0;
/// Success. The answer is no, or there was less than the caller asked for.
inline constexpr HRESULT S_FALSE = 1;
/// The operation is reserved.
inline constexpr HRESULT E_NOTIMPL = static_cast<HRESULT>(0x80004001U);
/// The object does not have the interface.
inline constexpr HRESULT E_NOINTERFACE = static_cast<HRESULT>(0x80004002U);
/// A pointer is null, or an object that the operation needs is missing.
inline constexpr HRESULT E_POINTER = static_cast<HRESULT>(0x80004003U);
/// The operation failed; no other status describes the reason.
inline constexpr HRESULT E_FAIL = static_cast<HRESULT>(0x80004005U);
/// A variant cannot be converted to the type.
inline constexpr HRESULT DISP_E_TYPEMISMATCH = static_cast<HRESULT>(0x80020005U);
/// A variant has an unknown type.
inline constexpr HRESULT DISP_E_BADVARTYPE = static_cast<HRESULT>(0x80020008U);
/// A number does not fit into the type.
inline constexpr HRESULT DISP_E_OVERFLOW = static_cast<HRESULT>(0x8002000AU);
/// There is no type library, so late binding is not available.
inline constexpr HRESULT TYPE_E_LIBNOTREGISTERED = static_cast<HRESULT>(0x8002801DU);
/// A file cannot be opened.
inline constexpr HRESULT STG_E_FILENOTFOUND = static_cast<HRESULT>(0x80030002U);
/// Objects of the class cannot be a part of another object.
inline constexpr HRESULT CLASS_E_NOAGGREGATION = static_cast<HRESULT>(0x80040110U);
/// The library does not have the class.
inline constexpr HRESULT CLASS_E_CLASSNOTAVAILABLE = static_cast<HRESULT>(0x80040111U);
/// The class is unknown, or unknown in the context that the caller asked for.
inline constexpr HRESULT REGDB_E_CLASSNOTREG = static_cast<HRESULT>(0x80040154U);
/// A text is not an identifier or not the name of a class.
inline constexpr HRESULT CO_E_CLASSSTRING = static_cast<HRESULT>(0x800401F3U);
/// No class object is registered with this number.
inline constexpr HRESULT CO_E_OBJNOTREG = static_cast<HRESULT>(0x800401FBU);
/// An allocation failed.
inline constexpr HRESULT E_OUTOFMEMORY = static_cast<HRESULT>(0x8007000EU);
/// An argument is not valid.
inline constexpr HRESULT E_INVALIDARG = static_cast<HRESULT>(0x80070057U);

/// Returns true if a status is not a failure.
constexpr bool SUCCEEDED(HRESULT status) { return status >= 0; }
/// Returns true if a status is a failure.
constexpr bool FAILED(HRESULT status) { return status < 0; }

/// A truth value at an interface: -1 is true, 0 is false.
using VARIANT_BOOL = std::int16_t;
/// The value that an operation stores for true.
inline constexpr VARIANT_BOOL VARIANT_TRUE = -1;
/// The value that an operation stores for false. Every other value reads as true.
inline constexpr VARIANT_BOOL VARIANT_FALSE = 0;

/// Where an object may live, as bits. Off Windows objects live in the process only.
enum CLSCTX : DWORD {
  CLSCTX_INPROC_SERVER = 1,
  CLSCTX_INPROC_HANDLER = 2,
  CLSCTX_LOCAL_SERVER = 4,
  CLSCTX_REMOTE_SERVER = 16,
};
inline constexpr DWORD CLSCTX_SERVER = 21;  ///< all bits except that of a handler
inline constexpr DWORD CLSCTX_ALL = 23;     ///< all bits

#endif

#endif  // KELIFC_PLATFORM_COM_TYPES_H_
