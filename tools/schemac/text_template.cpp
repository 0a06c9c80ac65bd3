#include "tools/schemac/text_template.h"

#include <stdexcept>

namespace schemac {

std::string Fill(std::string_view text, const TemplateWords& words) {
  constexpr char kMark = '@';
  std::string filled;
  for (;;) {
    const auto begin = text.find(kMark);
    filled += text.substr(0, begin);
    if (begin == std::string_view::npos) return filled;
    const auto end = text.find(kMark, begin + 1);
    const auto word = words.find(text.substr(begin + 1, end - begin - 1));
    if (end == std::string_view::npos || word == words.end()) {
      throw std::logic_error("a template has no text for '" + std::string(text.substr(begin)) +
                             "'");
    }
    filled += word->second;
    text.remove_prefix(end + 1);
  }
}

}  // namespace schemac
