#include "kelifc/platform/local_time.h"

#include <gtest/gtest.h>

#include <ctime>

namespace KelIFC {
namespace {

TEST(LocalTime, IsTheTimeOfTheMachine) {
  const std::time_t before = std::time(nullptr);
  const LocalTime now = GetLocalTimeNow();
  const std::time_t after = std::time(nullptr);
  std::tm parts = {};
  parts.tm_year = now.year - 1900;
  parts.tm_mon = now.month - 1;
  parts.tm_mday = now.day;
  parts.tm_hour = now.hour;
  parts.tm_min = now.minute;
  parts.tm_sec = now.second;
  parts.tm_isdst = -1;
  const std::time_t told = std::mktime(&parts);
  EXPECT_LE(before, told);
  EXPECT_LE(told, after);
}

}  // namespace
}  // namespace KelIFC
