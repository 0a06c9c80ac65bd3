#ifndef KELIFC_CORE_TEXT_ENUMERATOR_H_
#define KELIFC_CORE_TEXT_ENUMERATOR_H_

#include <string_view>

namespace KelIFC {

/// An enumerator as a part of a statement.
struct EnumText {
  std::string_view text;  ///< the text between the dots
  bool exists = false;    ///< false for `$`, `*` and any other text
  const char* next = nullptr;
};

/// Parses an enumerator such as `.NOTDEFINED.` by the rules of ENUM::Parse. `next` is the cursor
/// that ENUM::Parse returns.
EnumText ReadEnumText(const char* text);

}  // namespace KelIFC

#endif  // KELIFC_CORE_TEXT_ENUMERATOR_H_
