#include "kelifc/core/other.h"

#include <cstring>

#include "kelifc/core/detail/text_out.h"

namespace KelIFC {

IfcOther::~IfcOther() = default;

const char* IfcOther::Parse(const char* text) {
  const char* begin = IfcUnknown::Parse(text);
  if (begin == nullptr) return nullptr;
  const char* end = std::strrchr(begin, ')');
  if (end != nullptr) attributeText.append(begin, end);
  return begin;
}

std::ostream& IfcOther::Write(std::ostream& out) const {
  detail::PutUpperCase(out, stepEntityName, '(');
  detail::PutText(out, attributeText);
  return out;
}

void IfcOther::SetStepEntityName(const char* name) { stepEntityName = name == nullptr ? "" : name; }

}  // namespace KelIFC
