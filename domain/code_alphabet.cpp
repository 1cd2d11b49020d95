#include "domain/code_alphabet.h"

#include <algorithm>
#include <array>

namespace {

// The alphabet as a table by byte: find_first_not_of would search it once per character, and
// the bid files test several codes on each of a million lines.
constexpr std::array<bool, 256> kInAlphabet = [] {
  std::array<bool, 256> in{};
  for (char c : kCodeAlphabet) in[static_cast<unsigned char>(c)] = true;
  return in;
}();

}  // namespace

bool inCodeAlphabet(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char c) { return kInAlphabet[static_cast<unsigned char>(c)]; });
}
