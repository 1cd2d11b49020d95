// Dates and times as the order screens and the order history print them, in local time, with
// the C library's month names ("Jan".."Dec") whatever the user's locale.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

// The date of `time` (seconds since 1970) in one of ten styles:
//   0 "%d%b%Y" 05Jan2024     1 as 0 in capitals 05JAN2024   2 "%d" 05
//   3 "%d%b" 05Jan           4 as 3 in capitals 05JAN       5 "%x" 01/05/24 (the C locale's)
//   6 "%d-%m-%Y" 05-01-2024  7 "%d/%m/%Y" 05/01/2024        8 "%d/%b/%Y" 05/Jan/2024
//   9 "%d-%b-%Y" 05-Jan-2024
// Any other style gives an empty text.
std::string dateText(int32_t time, int style);

// `time` (seconds since 1970) in local time by a strftime `format`, with the classic locale's
// names; empty when the time cannot be converted.
std::string localTimeText(int64_t time, const char* format);

// "%d%b%Y %H:%M:%S" of `time`, at most 49 characters; empty for a time below 1.
std::string timeText(int32_t time);

// dateText into `buffer` of `size` bytes, cut to fit; the first 8 bytes are cleared first, so a
// style above 9 leaves an empty text. Always 1.
int formatDateText(char* buffer, size_t size, int32_t time, int style);

// timeText into `buffer` of `size` bytes, cut to fit; 1 when written, 0 for a time below 1.
int formatTimeText(int32_t time, char* buffer, size_t size);
