// What the order history shows of one history row: its list columns and its details block.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "domain/records.h"

constexpr int kHistoryColumnCount = 5;
const std::array<const char*, kHistoryColumnCount>& historyColumns();
std::string historyColumnText(const sOFSOrderInfo& row, int column);

constexpr size_t kHistoryDetailCount = 9;
// The labels of the details block, in display order; the last is the rejection reason.
const std::array<const char*, kHistoryDetailCount>& historyDetailLabels();
std::array<std::string, kHistoryDetailCount> historyDetails(const sOFSOrderInfo& row);
