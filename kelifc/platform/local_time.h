#ifndef KELIFC_PLATFORM_LOCAL_TIME_H_
#define KELIFC_PLATFORM_LOCAL_TIME_H_

namespace KelIFC {

/// A time in the time zone of the machine. The year has four digits, month and day count from 1,
/// and the hour is from 0 to 23.
struct LocalTime {
  int year = 0;
  int month = 0;
  int day = 0;
  int hour = 0;
  int minute = 0;
  int second = 0;  ///< 60 in a leap second
};

/// Returns the current local time, or 1970-01-01T00:00:00 if the system does not know it.
LocalTime GetLocalTimeNow();

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_LOCAL_TIME_H_
