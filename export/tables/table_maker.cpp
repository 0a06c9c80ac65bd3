#include "export/tables/table_maker.h"

#include "kelifc/platform/utf8.h"

#include "export/text.h"

namespace KelIFC::exporting {
namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

std::string WithoutNul(std::string_view text) {
  std::string clean;
  for (const char c : text) {
    if (c == '\0') {
      clean += kReplacement;
    } else {
      clean += c;
    }
  }
  return clean;
}

}  // namespace

TableCell TextCell(std::string_view text, KeptTexts& kept) {
  if (text.empty()) return {};
  if (text.find('\0') != std::string_view::npos) text = kept.emplace_back(WithoutNul(text));
  if (!IsValidUtf8(text)) text = kept.emplace_back(ValidUtf8(text));
  return text;
}

}  // namespace KelIFC::exporting
