#include "kelifc/platform/local_time.h"

#include <ctime>

namespace KelIFC {
namespace {

bool BreakDown(const std::time_t& moment, std::tm& parts) {
#ifdef _WIN32
  return localtime_s(&parts, &moment) == 0;
#else
  return localtime_r(&moment, &parts) != nullptr;
#endif
}

}  // namespace

LocalTime GetLocalTimeNow() {
  std::tm parts = {};
  if (!BreakDown(std::time(nullptr), parts)) return {1970, 1, 1, 0, 0, 0};
  return {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday,
          parts.tm_hour,        parts.tm_min,     parts.tm_sec};
}

}  // namespace KelIFC
