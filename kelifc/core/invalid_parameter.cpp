#include "kelifc/core/invalid_parameter.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>

namespace KelIFC {

namespace {

std::atomic<InvalidParameterHandler> currentHandler{nullptr};

}  // namespace

InvalidParameterHandler SetInvalidParameterHandler(InvalidParameterHandler handler) {
  return currentHandler.exchange(handler);
}

void FailInvalidParameter(const char* message) {
  if (const InvalidParameterHandler handler = currentHandler) {
    handler(message);
  } else {
    std::fprintf(stderr, "KelIFC: %s\n", message);
  }
  std::abort();
}

}  // namespace KelIFC
