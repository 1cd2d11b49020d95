// Character classes of typed codes and numbers, in ASCII whatever the locale.
#pragma once

#include <string_view>

bool isDigit(char c);
bool isLetterOrDigit(char c);

// Every character is a decimal digit (true for an empty text).
bool isDigits(std::string_view text);
// Every character is a digit or a point: what a price box lets through while typing.
bool isPriceTyping(std::string_view text);
// Every character is a letter or a decimal digit (true for an empty text).
bool isAlphanumeric(std::string_view text);
// No lower-case ASCII letter: digits and signs pass, as upper-casing would leave the text as is.
bool isUpperCase(std::string_view text);
// One or more blanks and nothing else.
bool isAllBlanks(std::string_view text);
