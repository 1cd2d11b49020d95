// printf-style formatting into a std::string, so texts keep the one-piece shape of a format.
#pragma once

#include <string>

std::string formatText(const char* format, ...) __attribute__((format(printf, 1, 2)));
