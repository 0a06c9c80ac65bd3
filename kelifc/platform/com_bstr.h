#ifndef KELIFC_PLATFORM_COM_BSTR_H_
#define KELIFC_PLATFORM_COM_BSTR_H_

#include <string_view>

#include "kelifc/platform/com_string.h"

namespace KelIFC {

/// Owns one automation string or none, and frees it at the end.
class Bstr {
 public:
  Bstr() = default;

  /// Copies the text. If there is no memory, the object owns no string.
  explicit Bstr(std::wstring_view text)
      : string(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {}

  Bstr(const Bstr&) = delete;
  Bstr& operator=(const Bstr&) = delete;
  ~Bstr() { SysFreeString(string); }

  /// Returns the string, or null. The object still owns it.
  BSTR Get() const { return string; }

  /// Returns a view of the string, empty if there is none. Put and the destructor invalidate it.
  std::wstring_view Text() const {
    return string == nullptr ? std::wstring_view()
                             : std::wstring_view(string, SysStringLen(string));
  }

  /// Frees the string and returns the place at which an operation stores a new one.
  BSTR* Put() {
    SysFreeString(string);
    string = nullptr;
    return &string;
  }

 private:
  BSTR string = nullptr;
};

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_COM_BSTR_H_
