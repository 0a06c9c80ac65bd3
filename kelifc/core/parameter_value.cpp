#include "kelifc/core/parameter_value.h"

#include "kelifc/core/detail/text_out.h"

namespace KelIFC {

IfcParameterValue::~IfcParameterValue() = default;
const char* IfcParameterValue::GetItemName() { return "IfcParameterValue"; }
const char* IfcParameterValue::GetStepName() const { return GetItemName(); }

const char* IfcParameterValue::Parse(const char* text) {
  return REAL::Parse(IfcUnknown::Parse(text));
}

std::ostream& IfcParameterValue::Write(std::ostream& out) const {
  IfcUnknown::Write(out);
  REAL::Write(out);
  detail::PutChar(out, ')');
  return out;
}

}  // namespace KelIFC
