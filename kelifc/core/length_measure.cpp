#include "kelifc/core/length_measure.h"

#include "kelifc/core/detail/text_out.h"

namespace KelIFC {

IfcLengthMeasure::~IfcLengthMeasure() = default;
const char* IfcLengthMeasure::GetItemName() { return "IfcLengthMeasure"; }
const char* IfcLengthMeasure::GetStepName() const { return GetItemName(); }

const char* IfcLengthMeasure::Parse(const char* text) { return REAL::Parse(text); }
std::ostream& IfcLengthMeasure::Write(std::ostream& out) const { return REAL::Write(out); }

std::ostream& IfcLengthMeasure::WriteWithName(std::ostream& out) const {
  IfcUnknown::Write(out);
  REAL::Write(out);
  detail::PutChar(out, ')');
  return out;
}

const char* IfcLengthMeasure::ParseBody(const char* text) {
  return REAL::Parse(IfcUnknown::Parse(text));
}

}  // namespace KelIFC
