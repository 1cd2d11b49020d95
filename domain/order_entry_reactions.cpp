#include <algorithm>

#include "domain/client_rules.h"
#include "domain/order_entry.h"
#include "domain/series.h"
#include "messaging/prompt_port.h"
#include "plugin/control_block.h"

bool COrderEntryDlg::isBse() const {
  return fields_.exchange.text == "BSEIPO";
}

std::vector<std::string> COrderEntryDlg::userAccounts() const {
  if (!block_.services.loadClientIdCombo) return block_.mappedAccounts;
  StringList accounts;
  block_.services.loadClientIdCombo(accounts);
  return accounts;
}

void COrderEntryDlg::fillClientTypes() {
  EntryChoice& list = fields_.clientType;
  if (list.items.empty() && block_.services.loadProCliCombo) {
    block_.services.loadProCliCombo(list.items);
  }
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
  if (block_.services.onSelChangeProCli) block_.services.onSelChangeProCli(type);
  showClientCodeFor(type);
  accountChosen();
}

void COrderEntryDlg::showClientCodeFor(const std::string& type) {
  OrderEntryFields& f = fields_;
  const bool walkin = type == kWalkinClient;
  f.walkinClientCode = {{}, true, walkin};
  f.walkinParticipantCode = {{}, true, walkin};
  if (type == kProClient) {
    f.clientCode = {block_.userId(), false, true};
    f.clientSearchEnabled = false;
    f.participantCode = {{}, {}, false};
  } else if (walkin) {
    f.clientCode = {{}, false, false};
    f.clientSearchEnabled = false;
    f.participantCode = {{}, {}, false};
  } else {
    const std::vector<std::string> accounts = userAccounts();
    const bool single = accounts.size() == 1;
    f.clientCode = {single ? accounts.front() : std::string(), !single, true};
    f.clientSearchEnabled = !single;
    f.participantCode = {{}, {}, !isRetailLikeSeries(series_)};
  }
}

void COrderEntryDlg::accountChosen() {
  OrderEntryFields& f = fields_;
  std::string pCode;
  const bool walkin = f.clientType.selected == kWalkinClient;
  if (!walkin && !f.clientCode.text.empty() && block_.services.getPCode &&
      !block_.services.getPCode(f.clientCode.text, pCode)) {
    pCode.clear();
  }
  std::string message;
  const AccountVerdict verdict =
      checkAccountPCode(f.exchange.text, series_, f.orderType.selected, pCode, message);
  if (verdict != AccountVerdict::Accept) prompt_.message(message);
  if (verdict == AccountVerdict::Refuse) {
    f.clientCode.text.clear();
    accountPCode_.clear();
    return;
  }
  if (verdict == AccountVerdict::ResetToInstitutional) f.orderType.selected = kInstitutionalOrder;
  accountPCode_ = pCode;
  if (f.participantCode.enabled) {
    f.participantCode.items.clear();
    if (!pCode.empty()) f.participantCode.items.push_back(pCode);
    f.participantCode.selected = pCode;
  }
  if (!isBse() && series_ == "IS") f.cutOffEnabled = false;
  rebuildChoiceLists();
}

void COrderEntryDlg::rebuildChoiceLists() {
  rebuildCategories();
  rebuildMargins();
}

void COrderEntryDlg::rebuildCategories() {
  EntryChoice& list = fields_.clientCategory;
  list = {{}, {}, isBse()};
  if (!isBse() || !issue_) return;
  const auto& categories = block_.recordMaps.categories;
  const auto it = categories.find(issue_->category);
  if (it == categories.end()) return;
  list.items = bseCategoryChoices(it->second, fields_.orderType.selected, series_, fields_.cutOff);
  if (!list.items.empty()) list.selected = list.items.front();
}

void COrderEntryDlg::rebuildMargins() {
  const MarginChoices choices = isBse()
                                    ? bseMarginChoices(fields_.orderType.selected, accountPCode_)
                                    : nseMarginChoices(series_, accountPCode_);
  fields_.margin.items = choices.items;
  fields_.margin.selected = choices.selected;
}
