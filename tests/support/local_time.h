// A fixed moment in the local zone, so that tests of dates and clocks do not depend on the zone.
#pragma once

#include <cstdint>
#include <ctime>

// Local midnight of a day plus seconds.
inline int64_t localTime(int day, int month, int year, int seconds = 0) {
  std::tm tm{};
  tm.tm_mday = day;
  tm.tm_mon = month - 1;
  tm.tm_year = year - 1900;
  tm.tm_isdst = -1;
  return static_cast<int64_t>(std::mktime(&tm)) + seconds;
}
