// A bid's quantity against its issue's minimum, lot and size. Every screen that takes a
// quantity asks here, each in its own order of steps.
#pragma once

#include <string>

#include "domain/records.h"

// What the lot and size texts call the issue: order entry and the bid files say "security", the
// basket says "contract".
enum class IssueNoun { Security, Contract };
// How the lot and size texts start: "Qty should be ..." on most screens, "Quantity should be ..."
// for the terminal's own bid file.
enum class QuantityWord { Qty, Quantity };

bool checkQuantityMinimum(const std::string& quantity, const sOFSCol& issue, std::string& message);
// A lot of 0 allows any quantity.
bool checkQuantityLot(const std::string& quantity, const sOFSCol& issue, std::string& message,
                      IssueNoun noun = IssueNoun::Security, QuantityWord word = QuantityWord::Qty);
// An issue size of 0 sets no limit.
bool checkQuantityIssueSize(const std::string& quantity, const sOFSCol& issue, std::string& message,
                            IssueNoun noun = IssueNoun::Security,
                            QuantityWord word = QuantityWord::Qty);
