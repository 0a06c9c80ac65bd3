#include "kelifc/platform/com_error.h"

#ifndef _WIN32

#include <optional>
#include <string>

#include "kelifc/platform/com_object.h"
#include "kelifc/platform/com_ptr.h"
#include "kelifc/platform/com_string.h"

namespace {

using KelIFC::ComPtr;
using Text = std::optional<std::wstring>;

HRESULT Take(const OLECHAR* text, Text& field) {
  return KelIFC::Guard([&] {
    field = text == nullptr ? Text() : Text(text);
    return S_OK;
  });
}

/// A text that was never set is null.
HRESULT Give(const Text& field, BSTR* out) {
  if (out == nullptr) return E_INVALIDARG;
  *out = nullptr;
  if (!field) return S_OK;
  *out = SysAllocStringLen(field->data(), static_cast<UINT>(field->size()));
  return *out == nullptr ? E_OUTOFMEMORY : S_OK;
}

template <class Value>
HRESULT GiveValue(const Value& value, Value* out) {
  if (out == nullptr) return E_INVALIDARG;
  *out = value;
  return S_OK;
}

class ErrorInfo : public IErrorInfo, public ICreateErrorInfo {
 public:
  using Interfaces = KelIFC::InterfaceList<IErrorInfo, ICreateErrorInfo>;
  // An error object stays with its thread after the failed call, so it does not keep the library
  // loaded.
  using Counted = KelIFC::UncountedObject;

  HRESULT GetGUID(GUID* out) override { return GiveValue(guid, out); }
  HRESULT GetSource(BSTR* out) override { return Give(source, out); }
  HRESULT GetDescription(BSTR* out) override { return Give(description, out); }
  HRESULT GetHelpFile(BSTR* out) override { return Give(helpFile, out); }
  HRESULT GetHelpContext(DWORD* out) override { return GiveValue(helpContext, out); }

  HRESULT SetGUID(const GUID& value) override {
    guid = value;
    return S_OK;
  }
  HRESULT SetSource(OLECHAR* text) override { return Take(text, source); }
  HRESULT SetDescription(OLECHAR* text) override { return Take(text, description); }
  HRESULT SetHelpFile(OLECHAR* text) override { return Take(text, helpFile); }
  HRESULT SetHelpContext(DWORD value) override {
    helpContext = value;
    return S_OK;
  }

 protected:
  ~ErrorInfo() = default;

 private:
  GUID guid = {};
  Text source;
  Text description;
  Text helpFile;
  DWORD helpContext = 0;
};

thread_local ComPtr<IErrorInfo> currentError;

}  // namespace

HRESULT CreateErrorInfo(ICreateErrorInfo** out) {
  if (out == nullptr) return E_INVALIDARG;
  return KelIFC::MakeObject<ErrorInfo>(ICreateErrorInfo::kIid, reinterpret_cast<void**>(out));
}

HRESULT SetErrorInfo(ULONG reserved, IErrorInfo* error) {
  if (reserved != 0) return E_INVALIDARG;
  currentError = ComPtr<IErrorInfo>(error);
  return S_OK;
}

HRESULT GetErrorInfo(ULONG reserved, IErrorInfo** out) {
  if (reserved != 0 || out == nullptr) return E_INVALIDARG;
  currentError.CopyTo(out);
  currentError.Reset();
  return *out == nullptr ? S_FALSE : S_OK;
}

#endif
