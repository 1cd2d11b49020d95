// The 21 columns of the order book's two lists and the text each shows of an order.
#pragma once

#include <array>
#include <functional>
#include <string>

#include "domain/records.h"

constexpr int kOrderBookColumnCount = 21;
const std::array<const char*, kOrderBookColumnCount>& orderBookColumns();

// The column of the client id: the one the host's active client filters on.
constexpr int kClientIdColumn = 9;

// `clientName` answers a client's name (empty when unknown).
std::string orderBookColumnText(const sOFSOrderInfo& order, int column,
                                const std::function<std::string(const std::string&)>& clientName);
