#include "kelifc/core/exception.h"

namespace KelIFC {

namespace {

const char* MessageOf(ECause cause) {
  return cause == CAUSE_MISSING_REFERENCE ? "a required reference leads to no instance of its class"
                                          : "an operation of the model failed";
}

}  // namespace

IfcException::IfcException(ECause reason) : std::runtime_error(MessageOf(reason)), cause(reason) {}

IfcException::~IfcException() = default;

}  // namespace KelIFC
