#include "kelifc/core/other.h"

#include <cstring>
#include <string>

#include "kelifc/core/detail/text_out.h"

namespace KelIFC {

IfcOther::~IfcOther() = default;

const char* IfcOther::Parse(const char* text) {
  const char* begin = IfcUnknown::Parse(text);
  if (begin == nullptr) return nullptr;
  const char* end = std::strrchr(begin, ')');
  if (end != nullptr) Append(std::string_view(begin, static_cast<std::size_t>(end - begin)));
  return begin;
}

void IfcOther::Append(std::string_view text) {
  const std::string_view old = attributeText.GetText();
  attributeText.Assign(old.empty() ? text : std::string(old).append(text));
}

std::ostream& IfcOther::Write(std::ostream& out) const {
  detail::PutUpperCase(out, stepEntityName, '(');
  detail::PutText(out, attributeText.GetText());
  return out;
}

void IfcOther::SetStepEntityName(const char* name) { stepEntityName = name == nullptr ? "" : name; }

}  // namespace KelIFC
