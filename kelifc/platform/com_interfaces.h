#ifndef KELIFC_PLATFORM_COM_INTERFACES_H_
#define KELIFC_PLATFORM_COM_INTERFACES_H_

#include "kelifc/platform/com_types.h"
#include "kelifc/platform/export.h"

#ifdef _WIN32
#include <oaidl.h>
#include <unknwn.h>
#else

struct ITypeInfo;
struct DISPPARAMS;
struct EXCEPINFO;
struct VARIANT;
/// A text with its length. SysAllocString allocates it and SysFreeString frees it. Null counts as
/// the empty text.
using BSTR = OLECHAR*;

// Interfaces of the system, with their operations in the fixed order. A caller never deletes an
// interface; it calls Release for each counted pointer that it received.

/// The base of all interfaces: counts references to the object and finds its other interfaces.
struct KELIFC_API IUnknown {
  static constexpr IID kIid = {
      0x00000000, 0x0000, 0x0000, {0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};

  /// Stores a counted pointer to the interface `iid` of this object. Stores null and returns
  /// E_NOINTERFACE if the object does not have it.
  virtual HRESULT QueryInterface(const IID& iid, void** out) = 0;

  /// Adds one reference and returns the number of references.
  virtual ULONG AddRef() = 0;

  /// Removes one reference; the object destroys itself after the last one. Returns the number of
  /// references left.
  virtual ULONG Release() = 0;

 protected:
  ~IUnknown() = default;
};

// Flags of IDispatch::Invoke: how the caller uses the operation.
inline constexpr WORD DISPATCH_METHOD = 1;          ///< calls a method
inline constexpr WORD DISPATCH_PROPERTYGET = 2;     ///< reads a property
inline constexpr WORD DISPATCH_PROPERTYPUT = 4;     ///< sets a property to a value
inline constexpr WORD DISPATCH_PROPERTYPUTREF = 8;  ///< sets a property to an object

/// The base of all interfaces that scripts can use: finds operations by name and calls them.
struct KELIFC_API IDispatch : IUnknown {
  static constexpr IID kIid = {
      0x00020400, 0x0000, 0x0000, {0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};

  /// Stores 1 if the type library describes the interface, otherwise 0. Off Windows there is no
  /// type library, and objects of the library return TYPE_E_LIBNOTREGISTERED from all four
  /// operations.
  virtual HRESULT GetTypeInfoCount(UINT* count) = 0;

  /// Stores a counted pointer to the type information of the interface. `index` is 0.
  virtual HRESULT GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) = 0;

  /// Stores the identifiers of `count` names: of an operation, then of its arguments. `iid` is
  /// reserved.
  virtual HRESULT GetIDsOfNames(const IID& iid, OLECHAR** names, UINT count, LCID locale,
                                DISPID* ids) = 0;

  /// Calls an operation by its identifier. `flags` says how it is used. `result`, `exception` and
  /// `badArgument` can be null.
  virtual HRESULT Invoke(DISPID id, const IID& iid, LCID locale, WORD flags, DISPPARAMS* arguments,
                         VARIANT* result, EXCEPINFO* exception, UINT* badArgument) = 0;

 protected:
  ~IDispatch() = default;
};

/// A class object: creates objects of one class.
struct KELIFC_API IClassFactory : IUnknown {
  static constexpr IID kIid = {
      0x00000001, 0x0000, 0x0000, {0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};

  /// Creates an object and stores a counted pointer to its interface `iid`. Returns
  /// CLASS_E_NOAGGREGATION if `outer` is not null.
  virtual HRESULT CreateInstance(IUnknown* outer, const IID& iid, void** out) = 0;

  /// Keeps the library loaded if `lock` is not 0; otherwise removes one such lock.
  virtual HRESULT LockServer(BOOL lock) = 0;

 protected:
  ~IClassFactory() = default;
};

/// Enumerates the items of a collection as variants.
struct KELIFC_API IEnumVARIANT : IUnknown {
  static constexpr IID kIid = {
      0x00020404, 0x0000, 0x0000, {0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};

  /// Stores the next items, `count` at most, and their number. Returns S_FALSE if there were fewer.
  /// `fetched` may be null if `count` is 1.
  virtual HRESULT Next(ULONG count, VARIANT* items, ULONG* fetched) = 0;

  /// Skips `count` items. Returns S_FALSE if there were fewer.
  virtual HRESULT Skip(ULONG count) = 0;

  /// Moves back to the first item.
  virtual HRESULT Reset() = 0;

  /// Stores a second enumerator at the same position.
  virtual HRESULT Clone(IEnumVARIANT** out) = 0;

 protected:
  ~IEnumVARIANT() = default;
};

/// Reports for which interfaces an object sets the error object.
struct KELIFC_API ISupportErrorInfo : IUnknown {
  static constexpr IID kIid = {
      0xDF0B3D60, 0x548F, 0x101B, {0x8E, 0x65, 0x08, 0x00, 0x2B, 0x2B, 0xD1, 0x19}};

  /// Returns S_OK for yes, S_FALSE for no.
  virtual HRESULT InterfaceSupportsErrorInfo(const IID& iid) = 0;

 protected:
  ~ISupportErrorInfo() = default;
};

/// The texts of an error object.
struct KELIFC_API IErrorInfo : IUnknown {
  static constexpr IID kIid = {
      0x1CF2B120, 0x547D, 0x101B, {0x8E, 0x65, 0x08, 0x00, 0x2B, 0x2B, 0xD1, 0x19}};

  /// Stores the identifier of the interface whose operation failed; the null identifier if it was
  /// not set.
  virtual HRESULT GetGUID(GUID* guid) = 0;
  /// Stores the name of the class whose operation failed; null if it was not set.
  virtual HRESULT GetSource(BSTR* source) = 0;
  /// Stores the message for people; null if it was not set.
  virtual HRESULT GetDescription(BSTR* description) = 0;
  /// Stores the path of a help file; null if it was not set.
  virtual HRESULT GetHelpFile(BSTR* helpFile) = 0;
  /// Stores the number of a topic in the help file; 0 if it was not set.
  virtual HRESULT GetHelpContext(DWORD* helpContext) = 0;

 protected:
  ~IErrorInfo() = default;
};

/// Sets what IErrorInfo of the same object returns. The object copies each text; null means "not
/// set".
struct KELIFC_API ICreateErrorInfo : IUnknown {
  static constexpr IID kIid = {
      0x22F03340, 0x547D, 0x101B, {0x8E, 0x65, 0x08, 0x00, 0x2B, 0x2B, 0xD1, 0x19}};

  /// Sets the identifier of the interface whose operation failed.
  virtual HRESULT SetGUID(const GUID& guid) = 0;
  /// Sets the name of the class whose operation failed.
  virtual HRESULT SetSource(OLECHAR* source) = 0;
  /// Sets the message for people.
  virtual HRESULT SetDescription(OLECHAR* description) = 0;
  /// Sets the path of a help file.
  virtual HRESULT SetHelpFile(OLECHAR* helpFile) = 0;
  /// Sets the number of a topic in the help file.
  virtual HRESULT SetHelpContext(DWORD helpContext) = 0;

 protected:
  ~ICreateErrorInfo() = default;
};

#endif

namespace KelIFC {

/// Returns the identifier of an interface.
template <class Interface>
const IID& IidOf() {
  return Interface::kIid;
}

#ifdef _WIN32
template <>
inline const IID& IidOf<IUnknown>() {
  return IID_IUnknown;
}
template <>
inline const IID& IidOf<IDispatch>() {
  return IID_IDispatch;
}
template <>
inline const IID& IidOf<IClassFactory>() {
  return IID_IClassFactory;
}
template <>
inline const IID& IidOf<IEnumVARIANT>() {
  return IID_IEnumVARIANT;
}
template <>
inline const IID& IidOf<ISupportErrorInfo>() {
  return IID_ISupportErrorInfo;
}
template <>
inline const IID& IidOf<IErrorInfo>() {
  return IID_IErrorInfo;
}
template <>
inline const IID& IidOf<ICreateErrorInfo>() {
  return IID_ICreateErrorInfo;
}
#endif

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_COM_INTERFACES_H_
