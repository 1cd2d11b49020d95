// The one way a check fails: its message goes to the caller's text, and the check says false.
#pragma once

#include <string>

inline bool refuse(std::string& message, std::string text) {
  message = std::move(text);
  return false;
}
