#include "host/sim/data_file.h"

#include <algorithm>
#include <fstream>

#include "host/script_line.h"
#include "host/sim/data_records.h"

namespace sim {

namespace {

using Reader = std::string (*)(Pairs&, ExchangeData&);

constexpr std::pair<const char*, Reader> kReaders[] = {
    {"issue", readIssue}, {"account", readAccount}, {"category", readCategory},
    {"asset", readAsset}, {"peer", readPeer},       {"order", readOrder},
};

std::string readLine(const std::string& line, ExchangeData& data) {
  // The terminal's own script words: blanks, double quotes, "#" comments.
  auto words = splitScriptWords(line);
  if (!words) return "a quote is not closed";
  if (words->empty()) return {};
  std::vector<std::pair<std::string, std::string>> pairs;
  for (size_t i = 1; i < words->size(); ++i) {
    const std::string& word = (*words)[i];
    const size_t eq = word.find('=');
    if (eq == std::string::npos || eq == 0) return "\"" + word + "\" is not key=value";
    pairs.emplace_back(word.substr(0, eq), word.substr(eq + 1));
  }
  for (const auto& [kind, reader] : kReaders) {
    if ((*words)[0] != kind) continue;
    Pairs record(std::move(pairs));
    std::string error = reader(record, data);
    if (error.empty() && !record.leftover().empty())
      error = "unknown key " + record.leftover() + " for " + kind;
    return error;
  }
  return "unknown record kind " + (*words)[0];
}

}  // namespace

std::optional<ExchangeData> readExchangeData(std::istream& in, std::string& error) {
  ExchangeData data;
  std::string line;
  for (int number = 1; std::getline(in, line); ++number) {
    const std::string problem = readLine(line, data);
    if (!problem.empty()) {
      error = "line " + std::to_string(number) + ": " + problem;
      return std::nullopt;
    }
  }
  return data;
}

std::optional<ExchangeData> readExchangeFile(const std::string& path, std::string& error) {
  std::ifstream in(path);
  if (!in) {
    error = "cannot read " + path;
    return std::nullopt;
  }
  auto data = readExchangeData(in, error);
  if (!data) error = path + ": " + error;
  return data;
}

}  // namespace sim
