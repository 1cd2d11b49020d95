// Bid file lines for the check suites: a good line per kind, the same line with one field
// replaced, and lookups holding the issues and accounts the good lines name.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "basket/bulk_bid_checks.h"
#include "basket/bulk_bid_readers.h"

namespace bulk_test {

using Fields = std::vector<std::string>;

// A failing line: the good line with some fields replaced, and the text it must give.
struct Step {
  std::vector<std::pair<size_t, std::string>> edits;
  std::string expected;
};

inline sOFSCol issue(const std::string& id, const std::string& symbol) {
  sOFSCol i;
  i.issueId = id;
  i.symbol = symbol;
  i.floorPrice = "100";
  i.field63023 = "120";                // ceiling
  i.field63059 = std::string(1, 'Y');  // cut-off allowed
  i.field54009 = "200000";             // retail limit
  i.hniLimit = "10000";
  i.lotSize = 10;
  i.minQuantity = 20;
  i.issueSize = 5000;
  i.tickSize = 0.05;
  return i;
}

inline BidLookups lookups() {
  BidLookups l;
  l.addIssue(issue("101", "ABC-IS"));
  l.addIssue(issue("102", "ABC-RS"));
  l.addAccount("ACC1", "PC1");
  l.addAccount("PC1", "PC1");
  l.addAccount("BSE1", "");
  l.addAccount("TM1", "");
  l.addAccount("AQ1", "PC1");
  sOFSCol noCutOff = issue("103", "XYZ-RS");
  noCutOff.field63059 = std::string(1, 'N');
  l.addIssue(noCutOff);
  const struct {
    const char *number, *status, *symbol, *client, *pCode;
  } orders[] = {{"N1", "open", "ABC-IS", "ACC1", "PC1"},
                {"N2", "cancelled", "ABC-IS", "ACC1", "PC1"},
                {"N3", "open", "ABC-RS", "ACC1", "PC1"},
                {"N4", "open", "ABC-RS", "ACC1", "TM1"},
                {"N5", "open", "ABC-IS", "PC1", "PC1"}};
  for (const auto& o : orders) {
    sOFSOrderInfo order;
    order.ofsOrderNo = o.number;
    order.status = o.status;
    order.symbol = o.symbol;
    order.clientId = o.client;
    order.pCode = o.pCode;
    order.quantity = "100";
    order.price = "10100";
    l.addOrder(order);
  }
  return l;
}

// `lead` is the character the exchanges' readers skip.
inline std::string join(const Fields& fields, const std::string& lead = "") {
  std::string text = lead;
  for (size_t i = 0; i < fields.size(); ++i) text += (i ? "," : "") + fields[i];
  return text + "\n";
}

// Reads `fields` as a line of `kind` and runs its checks; a reader's refusal is returned as is.
inline std::string outcome(BidFileKind kind, const Fields& fields, const BidContext& context) {
  BidLine line;
  const std::string lead = kind == BidFileKind::Vt ? "" : "x";
  if (auto m = readBidLine(kind, join(fields, lead), line); !m.empty()) return m;
  return checkBidLine(line, context);
}

// Walks a check sequence: the good line passes, and each step's line fails with its own text.
inline void walk(BidFileKind kind, const Fields& good, const std::vector<Step>& steps,
                 const BidContext& context) {
  EXPECT_EQ(outcome(kind, good, context), "");
  for (const Step& s : steps) {
    Fields f = good;
    for (const auto& [field, value] : s.edits) f[field] = value;
    EXPECT_EQ(outcome(kind, f, context), s.expected) << join(f);
  }
}

}  // namespace bulk_test
