// The columns of the three issue lists and the text each shows of an issue.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "domain/records.h"

struct ColumnDescriptor {
  std::string name;  // at most 63 characters
  int32_t width;
  int32_t alignment;  // 0 left, 1 right
  int32_t format = 3;
  std::string extra1{};
  std::string extra2{};
};

constexpr int kWatchColumnCount = 17;
const std::array<ColumnDescriptor, kWatchColumnCount>& watchColumns();

// The text of one column of an issue's row; column 17 (no list shows it) gives field 61002.
// `passed` is what the list had in the cell: "Underlying LTP" keeps it until a price is known.
std::string watchColumnText(const sOFSCol* issue, int column, const std::string& passed = {});
