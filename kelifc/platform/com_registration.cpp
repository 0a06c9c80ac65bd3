#include "kelifc/platform/com_registration.h"

#include <olectl.h>

#include <string>
#include <string_view>

#include "kelifc/platform/com_class.h"
#include "kelifc/platform/com_guard.h"
#include "kelifc/platform/com_guid.h"
#include "kelifc/platform/com_type_library.h"

namespace KelIFC {

namespace {

constexpr int kGuidLength = 39;

std::wstring TextOf(const GUID& guid) {
  wchar_t text[kGuidLength] = {};
  StringFromGUID2(guid, text, kGuidLength);
  return text;
}

/// Returns a program name without its version.
std::wstring WithoutVersion(std::wstring_view progId) {
  return std::wstring(progId.substr(0, progId.rfind(L'.')));
}

std::wstring KeyOf(const ComClass& type) { return L"CLSID\\" + TextOf(type.clsid); }

/// Finds the file of the module that contains this code.
HRESULT FindOwnFile(std::wstring& file) {
  constexpr DWORD kFlags =
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
  HMODULE module = nullptr;
  if (!GetModuleHandleExW(kFlags, reinterpret_cast<const wchar_t*>(&FindOwnFile), &module)) {
    return HRESULT_FROM_WIN32(GetLastError());
  }
  file.assign(MAX_PATH, L'\0');
  while (true) {
    const DWORD length = GetModuleFileNameW(module, file.data(), static_cast<DWORD>(file.size()));
    if (length == 0) return HRESULT_FROM_WIN32(GetLastError());
    if (length < file.size()) {
      file.resize(length);
      return S_OK;
    }
    file.resize(2 * file.size());
  }
}

/// Writes entries of the registry. After a failure it writes nothing more.
class EntryWriter {
 public:
  /// Sets a value of a key. A null name is the default value of the key.
  void Set(const std::wstring& key, const wchar_t* name, const std::wstring& text) {
    if (result != ERROR_SUCCESS) return;
    HKEY handle = nullptr;
    result = RegCreateKeyExW(HKEY_CLASSES_ROOT, key.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr,
                             &handle, nullptr);
    if (result != ERROR_SUCCESS) return;
    const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    result =
        RegSetValueExW(handle, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()), size);
    RegCloseKey(handle);
  }

  bool HasFailed() const { return result != ERROR_SUCCESS; }

 private:
  LSTATUS result = ERROR_SUCCESS;
};

void WriteClass(EntryWriter& out, const ComClass& type, const std::wstring& file) {
  const std::wstring key = KeyOf(type);
  const std::wstring clsid = TextOf(type.clsid);
  const std::wstring name = WithoutVersion(type.progId);
  out.Set(key, nullptr, type.progId);
  out.Set(key + L"\\InprocServer32", nullptr, file);
  out.Set(key + L"\\InprocServer32", L"ThreadingModel", L"Both");
  out.Set(key + L"\\ProgID", nullptr, type.progId);
  out.Set(key + L"\\VersionIndependentProgID", nullptr, name);
  out.Set(key + L"\\TypeLib", nullptr, TextOf(ComTypeLibrary().identifier));
  out.Set(type.progId, nullptr, type.progId);
  out.Set(type.progId + std::wstring(L"\\CLSID"), nullptr, clsid);
  out.Set(name, nullptr, type.progId);
  out.Set(name + L"\\CLSID", nullptr, clsid);
  out.Set(name + L"\\CurVer", nullptr, type.progId);
}

bool DeleteKey(const std::wstring& key) {
  const LSTATUS result = RegDeleteTreeW(HKEY_CLASSES_ROOT, key.c_str());
  return result == ERROR_SUCCESS || result == ERROR_FILE_NOT_FOUND;
}

bool DeleteClass(const ComClass& type) {
  bool isGone = DeleteKey(KeyOf(type));
  isGone = DeleteKey(type.progId) && isGone;
  return DeleteKey(WithoutVersion(type.progId)) && isGone;
}

HRESULT Register() {
  std::wstring file;
  HRESULT status = FindOwnFile(file);
  if (FAILED(status)) return status;
  EntryWriter out;
  for (const ComClass& type : ComClasses()) WriteClass(out, type, file);
  if (out.HasFailed()) return SELFREG_E_CLASS;
  status = RegisterTypeLibrary(file.c_str());
  return FAILED(status) ? SELFREG_E_TYPELIB : S_OK;
}

HRESULT Unregister() {
  bool isGone = true;
  for (const ComClass& type : ComClasses()) isGone = DeleteClass(type) && isGone;
  const HRESULT status = UnregisterTypeLibrary();
  if (!isGone) return SELFREG_E_CLASS;
  return FAILED(status) ? SELFREG_E_TYPELIB : S_OK;
}

}  // namespace

HRESULT RegisterLibrary() {
  const HRESULT status = Guard(&Register);
  if (FAILED(status)) UnregisterLibrary();
  return status;
}

HRESULT UnregisterLibrary() { return Guard(&Unregister); }

}  // namespace KelIFC
