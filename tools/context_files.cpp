#include "tools/context_files.h"

#include <fstream>
#include <vector>

#include "domain/bid_field_splitter.h"
#include "domain/series.h"
#include "issues/issue_file.h"

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

}  // namespace

bool readIssueFile(const std::string& path, BidLookups& lookups, std::string& error) {
  // Issues already open have start dates in the past: the past-date check does not apply.
  IssueFileRead read = loadIssueFile(path, std::nullopt);
  if (!read.opened) {
    error = path + ": File Open Error";
    return false;
  }
  for (sOFSCol& issue : read.issues) {
    issue.issueId = issue.field3 + "-" + seriesWord(issue.category);
    lookups.addIssue(issue);
  }
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
