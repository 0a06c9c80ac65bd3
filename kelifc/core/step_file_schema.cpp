#include "kelifc/core/step_file_schema.h"

namespace KelIFC {

StepFileSchema::~StepFileSchema() = default;
const char* StepFileSchema::GetItemName() { return "StepFileSchema"; }
const char* StepFileSchema::GetStepName() const { return GetItemName(); }

const char* StepFileSchema::Parse(const char* text) {
  return protocol.Parse(IfcUnknown::Parse(text));
}

}  // namespace KelIFC
