#ifndef KELIFC_TOOLS_SCHEMAC_TEXT_TEMPLATE_H_
#define KELIFC_TOOLS_SCHEMAC_TEXT_TEMPLATE_H_

#include <map>
#include <string>
#include <string_view>

namespace schemac {

/// The words of a template and the texts that replace them.
using TemplateWords = std::map<std::string_view, std::string, std::less<>>;

/// Returns `text` with each `@word@` replaced by its text. An inserted text is not searched again.
/// Throws std::logic_error for a word that is not in `words`, and for a single `@`.
std::string Fill(std::string_view text, const TemplateWords& words);

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_TEXT_TEMPLATE_H_
