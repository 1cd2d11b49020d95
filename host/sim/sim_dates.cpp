#include "host/sim/sim_dates.h"

#include <chrono>
#include <cstdio>
#include <ctime>

#include "host/sim/sim_numbers.h"

namespace sim {

namespace {

using std::chrono::day;
using std::chrono::days;
using std::chrono::month;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;

std::tm localTm(int64_t seconds) {
  const std::time_t t = static_cast<std::time_t>(seconds);
  std::tm tm{};
  localtime_r(&t, &tm);
  return tm;
}

int64_t dayNumber(int y, unsigned m, unsigned d) {
  return sys_days{year{y} / month{m} / day{d}}.time_since_epoch().count();
}

}  // namespace

int64_t localDay(int64_t seconds) {
  const std::tm tm = localTm(seconds);
  return dayNumber(tm.tm_year + 1900, static_cast<unsigned>(tm.tm_mon + 1),
                   static_cast<unsigned>(tm.tm_mday));
}

int64_t sameDayAt(int64_t seconds, int hour, int minute) {
  std::tm tm = localTm(seconds);
  tm.tm_hour = hour;
  tm.tm_min = minute;
  tm.tm_sec = 0;
  tm.tm_isdst = -1;
  return static_cast<int64_t>(std::mktime(&tm));
}

std::string dayText(int64_t dayCount) {
  const year_month_day ymd{sys_days{days{dayCount}}};
  char text[16];
  std::snprintf(text, sizeof text, "%02u/%02u/%04d", static_cast<unsigned>(ymd.day()),
                static_cast<unsigned>(ymd.month()), static_cast<int>(ymd.year()));
  return text;
}

std::optional<int64_t> parseDayText(const std::string& text) {
  const size_t first = text.find('/');
  const size_t second = first == std::string::npos ? first : text.find('/', first + 1);
  if (second == std::string::npos) return std::nullopt;
  const auto d = parseCount(text.substr(0, first));
  const auto m = parseCount(text.substr(first + 1, second - first - 1));
  const std::string yearText = text.substr(second + 1);
  const auto y = parseCount(yearText);
  if (!d || !m || !y || yearText.size() != 4 || *d > 31 || *m > 12) return std::nullopt;
  const year_month_day ymd{year{static_cast<int>(*y)}, month{static_cast<unsigned>(*m)},
                           day{static_cast<unsigned>(*d)}};
  if (!ymd.ok()) return std::nullopt;
  return sys_days{ymd}.time_since_epoch().count();
}

std::string resolveDate(const std::string& text, int64_t today) {
  const auto offset = parseSigned(text);
  return offset ? dayText(today + *offset) : text;
}

std::string timeText(int64_t seconds) {
  const std::tm tm = localTm(seconds);
  char text[80];
  std::snprintf(text, sizeof text, "%02d/%02d/%04d %02d:%02d:%02d", tm.tm_mday, tm.tm_mon + 1,
                tm.tm_year + 1900, tm.tm_hour, tm.tm_min, tm.tm_sec);
  return text;
}

}  // namespace sim
