#include "domain/char_classes.h"

#include <algorithm>

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

bool isLetterOrDigit(char c) {
  return isDigit(c) || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool isDigits(std::string_view text) {
  return std::all_of(text.begin(), text.end(), isDigit);
}

bool isPriceTyping(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return isDigit(c) || c == '.'; });
}

bool isAlphanumeric(std::string_view text) {
  return std::all_of(text.begin(), text.end(), isLetterOrDigit);
}

bool isUpperCase(std::string_view text) {
  return std::none_of(text.begin(), text.end(), [](char c) { return c >= 'a' && c <= 'z'; });
}

bool isAllBlanks(std::string_view text) {
  return !text.empty() && text.find_first_not_of(' ') == std::string_view::npos;
}
