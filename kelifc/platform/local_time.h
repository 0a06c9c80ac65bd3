#ifndef KELIFC_PLATFORM_LOCAL_TIME_H_
#define KELIFC_PLATFORM_LOCAL_TIME_H_

namespace KelIFC {

/// A moment broken down in the time zone of the machine, each field as people write it:
/// the year in full, month and day from 1, the hour from 0 to 23.
struct LocalTime {
  int year = 0;
  int month = 0;
  int day = 0;
  int hour = 0;
  int minute = 0;
  int second = 0;  ///< 60 in a leap second
};

/// The current local time; 1970-01-01T00:00:00 where the machine cannot tell it.
LocalTime GetLocalTimeNow();

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_LOCAL_TIME_H_
