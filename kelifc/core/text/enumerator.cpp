#include "kelifc/core/text/enumerator.h"

#include <cstring>

#include "kelifc/core/detail/cursor.h"

namespace KelIFC {

EnumText ReadEnumText(const char* text) {
  EnumText result;
  if (detail::SkipOmittedValue(result.next, text) || text == nullptr) return result;
  const char* dot = text + std::strcspn(text, ".,");
  if (*dot != '.') return result;
  const char* last = std::strchr(dot + 1, '.');
  if (last == nullptr) return result;
  result.text = std::string_view(dot + 1, static_cast<std::size_t>(last - dot - 1));
  result.exists = true;
  result.next = detail::BehindNextComma(last + 1);
  return result;
}

}  // namespace KelIFC
