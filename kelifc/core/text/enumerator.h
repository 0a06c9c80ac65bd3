#ifndef KELIFC_CORE_TEXT_ENUMERATOR_H_
#define KELIFC_CORE_TEXT_ENUMERATOR_H_

#include <string_view>

namespace KelIFC {

/// An enumerator in a statement, not copied out of it.
struct EnumText {
  std::string_view text;  ///< what stands between the dots
  bool exists = false;    ///< false for `$`, `*` and what is no enumerator
  const char* next = nullptr;
};

/// Reads an enumerator such as `.NOTDEFINED.` by the rules of ENUM::Parse; `next` is the cursor
/// that it gives back.
EnumText ReadEnumText(const char* text);

}  // namespace KelIFC

#endif  // KELIFC_CORE_TEXT_ENUMERATOR_H_
