// Dates and times as the order screens and history print them, in local time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

// Writes the date of `time` in `style` (0..9) into `buffer`; a style above 9 writes nothing.
// Always returns 1.
int formatDateText(char* buffer, int32_t time, int style);

// Same as formatDateText, returning the text.
std::string dateText(int32_t time, int style);

// "%d%b%Y %H:%M:%S" of `time` into `buffer` (at most `size` bytes, capped at 50 characters).
// A time below 1 gives an empty text and 0; otherwise 1.
int formatTimeText(int32_t time, char* buffer, size_t size);
