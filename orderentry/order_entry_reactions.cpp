#include <algorithm>

#include "domain/client_rules.h"
#include "domain/prompt_port.h"
#include "domain/series.h"
#include "orderentry/order_entry.h"

bool COrderEntryDlg::isBse() const {
  return fields_.exchange.text == "BSEIPO";
}

void COrderEntryDlg::fillClientTypes() {
  EntryChoice& list = fields_.clientType;
  if (list.items.empty()) list.items = port_.hostClientTypes();
  if (list.items.empty()) list.items = {kCliClient, kProClient};
  // The host knows its own client types; walk-in clients are this screen's.
  if (std::find(list.items.begin(), list.items.end(), kWalkinClient) == list.items.end()) {
    list.items.push_back(kWalkinClient);
  }
  if (list.selected.empty()) list.selected = list.items.front();
}

void COrderEntryDlg::clientTypeChanged() {
  fields_.walkinClientCode.text.clear();
  fields_.walkinParticipantCode.text.clear();
  fillClientTypes();
  const std::string& type = fields_.clientType.selected;
  port_.clientTypeChosen(type);
  showClientCodeFor(type);
  accountChosen();
}

void COrderEntryDlg::showClientCodeFor(const std::string& type) {
  OrderEntryFields& f = fields_;
  const bool walkin = type == kWalkinClient;
  f.walkinClientCode = {{}, true, walkin};
  f.walkinParticipantCode = {{}, true, walkin};
  if (type == kProClient) {
    f.clientCode = {port_.userId(), false, true};
    f.clientSearchEnabled = false;
    f.participantCode = {{}, {}, false};
  } else if (walkin) {
    f.clientCode = {{}, false, false};
    f.clientSearchEnabled = false;
    f.participantCode = {{}, {}, false};
  } else {
    const std::vector<std::string> accounts = port_.userAccounts();
    const bool single = accounts.size() == 1;
    f.clientCode = {single ? accounts.front() : std::string(), !single, true};
    f.clientSearchEnabled = !single;
    f.participantCode = {{}, {}, !isRetailLikeSeries(series_)};
  }
}

void COrderEntryDlg::accountChosen() {
  OrderEntryFields& f = fields_;
  const bool walkin = f.clientType.selected == kWalkinClient;
  std::string pCode;
  if (!walkin && !f.clientCode.text.empty()) pCode = port_.participantCodeOf(f.clientCode.text);
  std::string message;
  const AccountVerdict verdict =
      checkAccountPCode(f.exchange.text, series_, f.orderType.selected, pCode, message);
  if (verdict != AccountVerdict::Accept) prompt_.message(message);
  if (verdict == AccountVerdict::Refuse) {
    f.clientCode.text.clear();
    accountPCode_.clear();
    return;
  }
  const bool orderTypeReset = verdict == AccountVerdict::ResetToInstitutional;
  if (orderTypeReset) f.orderType.selected = kInstitutionalOrder;
  accountPCode_ = pCode;
  if (f.participantCode.enabled) {
    f.participantCode.items.clear();
    if (!pCode.empty()) f.participantCode.items.push_back(pCode);
    f.participantCode.selected = pCode;
  }
  if (!isBse() && series_ == "IS") f.cutOffEnabled = false;
  // The categories follow the series, order type and cut-off only: choosing another account
  // must not pick one again after the reset that follows a sent bid.
  if (orderTypeReset) rebuildCategories();
  rebuildMargins();
}

void COrderEntryDlg::rebuildChoiceLists() {
  rebuildCategories();
  rebuildMargins();
}

void COrderEntryDlg::rebuildCategories() {
  EntryChoice& list = fields_.clientCategory;
  list = {{}, {}, isBse()};
  if (!isBse() || !issue_) return;
  const std::vector<std::string>* categories = port_.clientCategoriesOf(issue_->category);
  if (!categories) return;
  list.items = bseCategoryChoices(*categories, fields_.orderType.selected, series_, fields_.cutOff);
  if (!list.items.empty()) list.selected = list.items.front();
}

void COrderEntryDlg::rebuildMargins() {
  const MarginChoices choices = isBse()
                                    ? bseMarginChoices(fields_.orderType.selected, accountPCode_)
                                    : nseMarginChoices(series_, accountPCode_);
  fields_.margin.items = choices.items;
  fields_.margin.selected = choices.selected;
}
