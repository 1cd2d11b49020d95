// One line of a terminal script split into words: blanks separate words, double quotes group
// them (with \" and \\ inside), '#' outside quotes starts a comment.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

struct ScriptLine {
  int number = 0;
  std::vector<std::string> words;
};

// Empty words for a blank or comment-only line; nullopt for an unterminated quote.
std::optional<std::vector<std::string>> splitScriptWords(const std::string& line);

// "63001=nse_ipo" into (63001, "nse_ipo"); nullopt when the id is not a 32-bit number.
std::optional<std::pair<uint32_t, std::string>> parseFieldWord(const std::string& word);
