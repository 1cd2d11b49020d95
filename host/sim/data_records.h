// The record kinds of the data file, each read from its key=value pairs into the data.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/sim/sim_data.h"

namespace sim {

// The pairs of one line; each reader takes the keys it knows, and a key left over is an error.
class Pairs {
 public:
  explicit Pairs(std::vector<std::pair<std::string, std::string>> pairs)
      : pairs_(std::move(pairs)), taken_(pairs_.size(), false) {}

  std::optional<std::string> take(const std::string& key);
  std::string take(const std::string& key, const std::string& otherwise);
  // The first key nobody took; empty when every key was taken.
  std::string leftover() const;
  const std::vector<std::pair<std::string, std::string>>& all() const { return pairs_; }

 private:
  std::vector<std::pair<std::string, std::string>> pairs_;
  std::vector<bool> taken_;
};

// Each returns what is wrong with the record, or an empty text when it was added.
std::string readIssue(Pairs& pairs, ExchangeData& data);
std::string readAccount(Pairs& pairs, ExchangeData& data);
std::string readCategory(Pairs& pairs, ExchangeData& data);
std::string readAsset(Pairs& pairs, ExchangeData& data);
std::string readPeer(Pairs& pairs, ExchangeData& data);
std::string readOrder(Pairs& pairs, ExchangeData& data);

}  // namespace sim
