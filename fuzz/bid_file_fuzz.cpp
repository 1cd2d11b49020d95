// Any bytes as a bid file of one kind (OFS_BID_KIND, set by the build), checked against a
// populated context: every piece is a row or a refusal, refusals come in file order, and a row
// the load kept passes its checks again.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>

#include "basket/bulk_bid_checks.h"
#include "basket/bulk_bid_file.h"

namespace {

// The issues, accounts and order the seed files name, so that inputs reach every check.
const BidLookups& lookups() {
  static const BidLookups populated = [] {
    BidLookups l;
    for (const auto& [id, symbol] : {std::pair{"101", "ABC-IS"}, {"102", "ABC-RS"}}) {
      sOFSCol issue;
      issue.issueId = id;
      issue.symbol = symbol;
      issue.floorPrice = "100";
      issue.field63023 = "120";
      issue.field63059 = "Y";
      issue.field54009 = "200000";
      issue.hniLimit = "10000";
      issue.lotSize = 10;
      issue.minQuantity = 20;
      issue.issueSize = 5000;
      issue.tickSize = 0.05;
      l.addIssue(issue);
    }
    for (const auto& [account, pCode] : {std::pair{"ACC1", "PC1"}, {"PC1", "PC1"}, {"BSE1", ""}})
      l.addAccount(account, pCode);
    sOFSOrderInfo order;
    order.ofsOrderNo = "N1";
    order.status = "open";
    order.symbol = "ABC-IS";
    order.clientId = "ACC1";
    order.pCode = "PC1";
    order.quantity = "100";
    order.price = "10100";
    l.addOrder(order);
    return l;
  }();
  return populated;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::string bytes(reinterpret_cast<const char*>(data), size);
  bytes.push_back('\0');  // fmemopen refuses a buffer of size 0
  std::FILE* file = fmemopen(bytes.data(), size == 0 ? 1 : size, "rb");
  if (!file) return 0;
  const BidContext context = lookups().context("TM1");
  const BidFileLoad load = readBidFile(file, static_cast<BidFileKind>(OFS_BID_KIND), context);
  std::fclose(file);
  if (!load.opened) __builtin_trap();
  for (size_t i = 1; i < load.refusals.size(); ++i)
    if (load.refusals[i].line < load.refusals[i - 1].line) __builtin_trap();
  for (const BidLine& row : load.rows)
    if (!checkBidLine(row, context).empty()) __builtin_trap();
  return 0;
}
