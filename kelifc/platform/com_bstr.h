#ifndef KELIFC_PLATFORM_COM_BSTR_H_
#define KELIFC_PLATFORM_COM_BSTR_H_

#include <string_view>

#include "kelifc/platform/com_string.h"

namespace KelIFC {

/// Holds one automation string, or none, and gives it back at the end.
class Bstr {
 public:
  Bstr() = default;

  /// A copy of the text. Without memory for it, none.
  explicit Bstr(std::wstring_view text)
      : string(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {}

  Bstr(const Bstr&) = delete;
  Bstr& operator=(const Bstr&) = delete;
  ~Bstr() { SysFreeString(string); }

  BSTR Get() const { return string; }

  /// The characters; empty for none.
  std::wstring_view Text() const {
    return string == nullptr ? std::wstring_view()
                             : std::wstring_view(string, SysStringLen(string));
  }

  /// Where an operation puts a string; the one that was held is given back.
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
