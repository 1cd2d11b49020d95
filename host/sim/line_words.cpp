#include "host/sim/line_words.h"

namespace sim {

std::optional<std::vector<std::string>> splitWords(const std::string& line) {
  std::vector<std::string> words;
  std::string word;
  bool inWord = false;
  bool quoted = false;
  for (size_t i = 0; i < line.size(); ++i) {
    const char c = line[i];
    if (quoted) {
      if (c == '\\' && i + 1 < line.size()) {
        word += line[++i];
      } else if (c == '"') {
        quoted = false;
      } else {
        word += c;
      }
    } else if (c == ' ' || c == '\t' || c == '\r') {
      if (inWord) words.push_back(std::move(word));
      word.clear();
      inWord = false;
    } else {
      inWord = true;
      if (c == '"') {
        quoted = true;
      } else {
        word += c;
      }
    }
  }
  if (quoted) return std::nullopt;
  if (inWord) words.push_back(std::move(word));
  return words;
}

}  // namespace sim
