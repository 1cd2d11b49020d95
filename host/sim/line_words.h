// Splitting one data file line into its words: blanks separate, double quotes keep blanks
// (also after "key="), and inside quotes a backslash escapes the next character.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace sim {

// Nullopt when a quote is not closed.
std::optional<std::vector<std::string>> splitWords(const std::string& line);

}  // namespace sim
