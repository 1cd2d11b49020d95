// The Scrip Properties window: every property of the selected issue, one labelled line each.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "domain/records.h"

class CScripProp {
 public:
  void show(const sOFSCol& issue);
  const std::string& title() const { return title_; }
  // (label, value) in the order a dealer reads an issue: identity, dates, prices, quantities,
  // flags, then the fields the exchange sends without a name of their own.
  const std::vector<std::pair<std::string, std::string>>& rows() const { return rows_; }

 private:
  std::string title_;
  std::vector<std::pair<std::string, std::string>> rows_;
};
