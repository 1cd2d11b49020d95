// Days and their texts. A day is a count of days since 1 January 1970; texts are "DD/MM/YYYY",
// the way the issue list writes its dates.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace sim {

// The local calendar day at `seconds` since 1970.
int64_t localDay(int64_t seconds);
std::string dayText(int64_t day);
// "21/11/2026" (one-digit day and month allowed); nullopt for anything else or a day the
// month does not have.
std::optional<int64_t> parseDayText(const std::string& text);
// "+3", "-2" and "0" are days from `today`, written as a day text; any other text stands.
std::string resolveDate(const std::string& text, int64_t today);
// The same local day as `seconds`, at hour:minute.
int64_t sameDayAt(int64_t seconds, int hour, int minute);
// "21/11/2026 10:15:00" in local time.
std::string timeText(int64_t seconds);

}  // namespace sim
