#include "issues/watch_view.h"

#include "domain/date_text.h"
#include "domain/issue_date.h"
#include "messaging/issue_admin_requests.h"

namespace {

constexpr std::array<int, kControlCount> kControlKinds{2, 0, 2, 3, 1};

}  // namespace

CWatchView::CWatchView(IssuesPort& port) : port_(port) {
  for (int i = 0; i < kControlCount; ++i)
    port.messageLayer().setControl(static_cast<Control>(i), port.obtainRxControl(kControlKinds[i]));
  port.attachWatchView(this);
}

CWatchView::~CWatchView() {
  for (int i = 0; i < kControlCount; ++i) {
    MessageLayer& layer = port_.messageLayer();
    IIrbeRxControl* control = layer.control(static_cast<Control>(i));
    layer.setControl(static_cast<Control>(i), nullptr);
    if (control) port_.releaseRxControl(control);
  }
  if (port_.attachedWatchView() == this) port_.attachWatchView(nullptr);
}

WatchTab CWatchView::tabFor(const sOFSCol& issue) const {
  // Dates are compared as 32-bit times, as the list always has.
  const auto today = static_cast<int32_t>(parseIssueDate(localTimeText(port_.now(), "%d/%m/%Y")));
  const auto open = static_cast<int32_t>(parseIssueDate(issue.field49165));
  const auto close = static_cast<int32_t>(parseIssueDate(issue.field79));
  if (open > today) return WatchTab::Forthcoming;
  if (close >= today) return WatchTab::Current;
  return WatchTab::Past;
}

void CWatchView::addIssue(sOFSCol* issue) {
  if (!issue) return;
  const WatchTab tab = tabFor(*issue);
  if (tab == WatchTab::Current) currentIds_.push_back(issue->issueId);
  rows_[index(tab)].push_front(issue);
  // Selections are row numbers: they move down with the new top row.
  for (int& row : selection_[index(tab)]) ++row;
  notify(tab, 0);
}

sOFSCol* CWatchView::selectedIssue() const {
  const auto& selected = selection_[index(activeTab_)];
  const auto& rows = rows_[index(activeTab_)];
  if (selected.empty() || selected.front() < 0 ||
      static_cast<size_t>(selected.front()) >= rows.size())
    return nullptr;
  return rows[static_cast<size_t>(selected.front())];
}

std::vector<MenuEntry> CWatchView::contextMenu(WatchTab tab) const {
  return watchContextMenu(tab, port_.hasAddIssueRight());
}

void CWatchView::registerHotkeys(void* window) const {
  const bool mayAddIssues = port_.hasAddIssueRight();
  for (const HotkeyRow& row : watchHotkeys()) {
    if (row.needsAddIssueRight && !mayAddIssues) continue;
    if (!port_.registerHotkey(window, row)) return;
  }
}

bool CWatchView::requireAddIssueRight() {
  if (port_.hasAddIssueRight()) return true;
  port_.prompt().message("Add/Modify OFS Issue details has not been enabled");
  return false;
}

void CWatchView::cancelUnallottedOrders() {
  sOFSCol* issue = selectedIssue();
  if (!issue) {
    port_.hostMessageBox("Please select an issue");
    return;
  }
  requestCancelUnallotted(port_.messageLayer(), issue->issueId, issue->exchange);
  const std::string text = "OFS Cancel Unalloted Orders Request sent for " + issue->issueId;
  port_.log(text);
  port_.hostMessageBox(text);
}

void CWatchView::runCommand(int command) {
  // Admin commands are refused here as well as left out of the menus, so no path (menu,
  // shortcut, script) can send an admin request without the right.
  const bool admin = command == kCmdUploadIssues || command == kCmdExportIssues ||
                     command == kCmdAllotmentNse || command == kCmdAllotmentBse ||
                     command == kCmdCancelUnallotted;
  if (admin && !port_.hasAddIssueRight()) return;

  sOFSCol* issue = selectedIssue();
  switch (command) {
    case kCmdAddIssue:
      if (requireAddIssueRight() && launcher_) launcher_->openIssueDetails(nullptr);
      return;
    case kCmdModifyIssue:
      if (!requireAddIssueRight()) return;
      if (!issue) {
        port_.prompt().message("Please select scrip for modification");
        return;
      }
      if (launcher_) launcher_->openIssueDetails(issue);
      return;
    case kCmdOrderEntry:
      if (!issue) return;
      if (issue->biddingFlag == "N") {
        port_.prompt().message("Bid is Not Allowed For this Scrip");
        return;
      }
      if (launcher_) launcher_->openOrderEntry(*issue);
      return;
    case kCmdCancelUnallotted:
      cancelUnallottedOrders();
      return;
    default:
      break;
  }
  if (!launcher_) return;
  switch (command) {
    case kCmdOrderBook:
      launcher_->openOrderBook();
      break;
    case kCmdBasketOrder:
      launcher_->openBasket();
      break;
    case kCmdBulkUpload:
      launcher_->openBulkUpload();
      break;
    case kCmdScripProperties:
      if (issue) launcher_->openScripProperties(*issue);
      break;
    case kCmdMarketDepth:
      if (issue) launcher_->openMarketDepth(*issue);
      break;
    case kCmdUploadIssues:
      launcher_->openIssueUpload();
      break;
    case kCmdExportIssues:
      launcher_->openIssueExport();
      break;
    case kCmdAllotmentNse:
      launcher_->openAllotmentUpload("nse_ipo");
      break;
    case kCmdAllotmentBse:
      launcher_->openAllotmentUpload("bse_ipo");
      break;
    default:
      break;
  }
}

void CWatchView::runHotkey(int number) {
  if (number == kKeyOrderBookDelete) {
    if (launcher_) launcher_->deleteInOrderBook();
    return;
  }
  // The add and modify shortcuts exist only for holders of the right; a stray number does not
  // get past the right check in runCommand either.
  if (const int command = commandForHotkey(number)) runCommand(command);
}

void CWatchView::assetShown(const std::string&, const std::string&) {
  notify(WatchTab::Current, -1);
}

void CWatchView::refresh() {
  for (WatchTab tab : {WatchTab::Current, WatchTab::Forthcoming, WatchTab::Past}) notify(tab, -1);
}
