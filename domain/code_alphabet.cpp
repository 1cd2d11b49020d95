#include "domain/code_alphabet.h"

bool inCodeAlphabet(std::string_view text) {
  return text.find_first_not_of(kCodeAlphabet) == std::string_view::npos;
}
