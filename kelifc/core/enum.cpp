#include "kelifc/core/enum.h"

#include <cstring>

#include "kelifc/core/detail/cursor.h"

namespace KelIFC {

EnumText ReadEnumText(const char* text) {
  EnumText result;
  if (SkipOmittedValue(result.next, text) || text == nullptr) return result;
  const char* dot = text + std::strcspn(text, ".,");
  if (*dot != '.') return result;
  const char* last = std::strchr(dot + 1, '.');
  if (last == nullptr) return result;
  result.text = std::string_view(dot + 1, static_cast<std::size_t>(last - dot - 1));
  result.exists = true;
  result.next = BehindNextComma(last + 1);
  return result;
}

const char* ENUM::Parse(const char* text) {
  const EnumText read = ReadEnumText(text);
  assign(read.text);
  exists = read.exists;
  return read.next;
}

}  // namespace KelIFC
