// Filling the record of an order the user just placed, from the placement answer.
#pragma once

#include "domain/records.h"
#include "messaging/field_readers.h"

// "om_put_order_ofs": a "bse_ipo" order takes its PCode from 64739.
void fillPlacedOrder(const MessageView& row, sOFSOrderInfo& order);
// "om_put_order_walkin".
void fillPlacedWalkinOrder(const MessageView& row, sOFSOrderInfo& order);
// Copies the issue's tick size, minimum quantity and lot size when the summary has an id.
void copyIssueNumbers(const sOFSIssueSummary& issue, sOFSOrderInfo& order);

// The wire price of a placement or modification answer: "MKT" when the tag says so.
std::string answeredPrice(const MessageView& row);
// The PCode of a placement or modification answer: 64739 for "bse_ipo", else 10332.
std::string answeredPCode(const MessageView& row);
