#include "tools/context_files.h"

#include <fstream>
#include <vector>

#include "domain/bid_field_splitter.h"
#include "domain/number_text.h"

namespace {

using Fields = std::vector<std::string>;

// Every line's fields, from its first character; blank lines are passed over.
bool readLines(const std::string& path, std::vector<Fields>& lines, std::string& error) {
  std::ifstream in(path, std::ios::binary);
  if (!in) {
    error = path + ": File Open Error";
    return false;
  }
  std::string text;
  while (std::getline(in, text)) {
    if (text.empty() || text == "\r") continue;
    Fields fields;
    BidFieldSplitter splitter(text, -1);
    std::string field;
    while (splitter.next(field)) fields.push_back(field);
    lines.push_back(std::move(fields));
  }
  return true;
}

const std::string& at(const Fields& fields, size_t n) {
  static const std::string kNone;
  return n < fields.size() ? fields[n] : kNone;
}

// The columns of the issue file, in its order, as the bid checks read them.
sOFSCol issueOf(const Fields& f) {
  sOFSCol issue;
  issue.exchange = at(f, 0);
  issue.field3 = at(f, 1);
  issue.category = at(f, 2);
  issue.symbol = at(f, 1) + "-" + at(f, 2);
  issue.issueId = issue.symbol;
  issue.tickSizeText = at(f, 5);
  issue.tickSize = leadingDouble(issue.tickSizeText);
  issue.floorPrice = at(f, 6);
  issue.field54079 = at(f, 7);
  issue.field49165 = at(f, 8);
  issue.field79 = at(f, 9);
  issue.minQuantityText = at(f, 11);
  issue.minQuantity = leadingInt64(issue.minQuantityText);
  issue.lotSizeText = at(f, 12);
  issue.lotSize = leadingInt64(issue.lotSizeText);
  issue.issueSizeText = at(f, 13);
  issue.issueSize = leadingDouble(issue.issueSizeText);
  issue.field54009 = at(f, 14);
  issue.hniLimit = at(f, 15);
  issue.field67 = at(f, 16);
  issue.field63059 = at(f, 21);
  issue.field49033 = at(f, 22);
  issue.assetSymbol = at(f, 23);
  issue.field63023 = at(f, 24);
  issue.field54803 = at(f, 25);
  return issue;
}

}  // namespace

bool readIssueFile(const std::string& path, BidLookups& lookups, std::string& error) {
  std::vector<Fields> lines;
  if (!readLines(path, lines, error)) return false;
  for (size_t n = 1; n < lines.size(); ++n) lookups.addIssue(issueOf(lines[n]));  // 0: header
  return true;
}

bool readAccountsFile(const std::string& path, BidLookups& lookups, std::string& error) {
  std::vector<Fields> lines;
  if (!readLines(path, lines, error)) return false;
  for (const Fields& f : lines) lookups.addAccount(at(f, 0), at(f, 1));
  return true;
}

bool readOrdersFile(const std::string& path, BidLookups& lookups, std::string& error) {
  std::vector<Fields> lines;
  if (!readLines(path, lines, error)) return false;
  for (const Fields& f : lines) {
    sOFSOrderInfo order;
    order.ofsOrderNo = at(f, 0);
    order.status = at(f, 1);
    order.symbol = at(f, 2);
    order.clientId = at(f, 3);
    order.pCode = at(f, 4);
    order.quantity = at(f, 5);
    order.price = at(f, 6);
    lookups.addOrder(order);
  }
  return true;
}
