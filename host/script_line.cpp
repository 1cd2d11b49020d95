#include "host/script_line.h"

#include <cctype>
#include <charconv>

std::optional<std::vector<std::string>> splitScriptWords(const std::string& line) {
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
      continue;
    }
    if (c == '"') {
      quoted = true;
      inWord = true;
    } else if (c == '#' && !inWord) {
      break;
    } else if (std::isspace(static_cast<unsigned char>(c))) {
      if (inWord) words.push_back(std::move(word));
      word.clear();
      inWord = false;
    } else {
      word += c;
      inWord = true;
    }
  }
  if (quoted) return std::nullopt;
  if (inWord) words.push_back(std::move(word));
  return words;
}

std::optional<std::pair<uint32_t, std::string>> parseFieldWord(const std::string& word) {
  const size_t eq = word.find('=');
  if (eq == std::string::npos || eq == 0) return std::nullopt;
  uint32_t id = 0;
  const char* begin = word.data();
  auto [end, ec] = std::from_chars(begin, begin + eq, id);
  if (ec != std::errc() || end != begin + eq) return std::nullopt;
  return std::make_pair(id, word.substr(eq + 1));
}
