// Rows of the issue list, the client categories and the company issue lookup.
#include "messaging/dispatch_steps.h"
#include "messaging/issue_fill.h"
#include "messaging/query_requests.h"

namespace {

// Links the issue to its underlying's price record and asks for the price once per issue.
void linkAsset(DispatchContext& context, sOFSCol& issue) {
  if (issue.assetSymbol.empty()) return;
  auto& slot = context.records().assets[assetKey(issue)];
  if (!slot) slot = std::make_unique<sAssetInfo>();
  issue.asset = slot.get();
  requestAssetLtp(context.messageLayer(), issue.exchange, issue.assetSymbol);
}

}  // namespace

void handleCategoryRow(DispatchContext& context, const MessageView& row) {
  context.records().categories[row.text(10610)].push_back(row.text(13034));
}

void handleIssueRow(DispatchContext& context, const MessageView& row) {
  std::string flag = row.text(54571);
  std::string symbol = row.text(10100);
  // Issues closed to bidding are for administrators only.
  if (flag == "N" && !context.hasAddIssueRight()) return;
  OFSRecords& records = context.records();
  if (records.issues.contains(symbol)) return;
  auto issue = std::make_unique<sOFSCol>();
  records.issueSymbols.push_back(symbol);
  fillIssue(row, *issue);
  sOFSCol& stored = *(records.issues[symbol] = std::move(issue));
  context.issueAdded(stored);
  linkAsset(context, stored);
}

void handleCompanyIssueRow(DispatchContext& context, const MessageView& row) {
  auto& slot = context.records().issuesById[row.text(63032)];
  if (slot) return;
  slot = std::make_unique<sOFSIssueSummary>();
  fillIssueSummary(row, *slot);
}
