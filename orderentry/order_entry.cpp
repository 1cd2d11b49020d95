#include "orderentry/order_entry.h"

#include <algorithm>

#include "domain/char_classes.h"
#include "domain/client_rules.h"
#include "domain/code_alphabet.h"
#include "domain/exchange_names.h"
#include "domain/issue_terms.h"
#include "domain/number_text.h"
#include "domain/series.h"

namespace {

bool typeInto(EntryText& field, const std::string& text, bool accepted) {
  if (!field.enabled || !field.visible || !accepted) return false;
  field.text = text;
  return true;
}

bool pick(EntryChoice& list, const std::string& entry) {
  if (!list.enabled) return false;
  if (std::find(list.items.begin(), list.items.end(), entry) == list.items.end()) return false;
  list.selected = entry;
  return true;
}

// A dealer bidding in a retail series bids as a retail client; in any other as an institution.
std::string defaultOrderType(const std::string& series) {
  return isRetailLikeSeries(series) ? kRetailOrder : kInstitutionalOrder;
}

std::string clientTypeOf(const sOFSOrderInfo& order) {
  if (order.clientId.empty()) return kWalkinClient;
  return order.proCliFlag == "F" ? kProClient : kCliClient;
}

}  // namespace

COrderEntryDlg::COrderEntryDlg(OrderEntryPort& port, PromptPort& prompt)
    : port_(port), prompt_(prompt) {
  fields_.orderType.items = {kRetailOrder, kNonInstitutionalOrder, kInstitutionalOrder};
}

void COrderEntryDlg::loadIssue(const sOFSCol& issue) {
  issue_ = &issue;
  fields_.exchange.text = exchangeScreenName(issue.exchange);
  fields_.priceRange = priceRangeOf(issue);
  fields_.cutOffFlag = cutOffAllowanceOf(issue);
  fields_.closingTime = closingTimeOf(issue);
  fields_.indicativePrice.text = indicativePriceOf(issue);
  fields_.cutOff = false;
  fields_.cutOffEnabled = fields_.cutOffFlag == "Y";
  fillClientTypes();
}

void COrderEntryDlg::open(const sOFSCol& issue) {
  setMode(false);
  loadIssue(issue);
  fields_.ofsId.text = issue.symbol;
  series_ = seriesOfSymbol(issue.symbol);
  fields_.orderType.selected = defaultOrderType(series_);
  fields_.price = {};
  fields_.quantity.text.clear();
  fields_.clientType.enabled = true;
  clientTypeChanged();
  rebuildCategories();
  notifyAll();
}

void COrderEntryDlg::openForModification(const sOFSOrderInfo& order, const sOFSCol& issue) {
  setMode(true);
  loadIssue(issue);
  order_ = order;
  fields_.ofsId.text = order.symbol;
  series_ = seriesOfSymbol(order.symbol);
  fields_.orderType.selected = defaultOrderType(series_);
  if (issue.exchange == "nse_ipo" && order.priceType == "MKT") {
    fields_.price = {"MKT", false, true};
  } else {
    fields_.price = {fixedText(leadingDouble(order.price) / 100, 2), true, true};
  }
  fields_.quantity.text = order.quantity;
  showOrderClient(order);
  rebuildChoiceLists();
  pick(fields_.margin, order.margin);
  notifyAll();
}

// A modification keeps the order's client: its fields show it and cannot be changed.
void COrderEntryDlg::showOrderClient(const sOFSOrderInfo& order) {
  OrderEntryFields& f = fields_;
  const bool walkin = order.clientId.empty();
  f.clientType.selected = clientTypeOf(order);
  f.clientType.enabled = false;
  f.clientCode = {order.clientId, false, !walkin};
  f.clientSearchEnabled = false;
  f.walkinClientCode = {order.walkinClientId, false, walkin};
  f.walkinParticipantCode = {walkin ? order.pCode : "", true, walkin};
  accountPCode_ = order.pCode;
  f.participantCode = {{}, {}, false};
  if (walkin) return;
  if (!order.pCode.empty()) f.participantCode.items = {order.pCode};
  f.participantCode.selected = order.pCode;
}

void COrderEntryDlg::setMode(bool modifying) {
  modifying_ = modifying;
  heading_ = modifying ? kModifyHeading : kNewBidHeading;
  button_ = modifying ? kModifyButton : kNewBidButton;
  notify(Change::Heading);
}

bool COrderEntryDlg::setQuantity(const std::string& text) {
  if (!typeInto(fields_.quantity, text, isDigits(text))) return false;
  notify(Change::Fields);
  return true;
}

bool COrderEntryDlg::setPrice(const std::string& text) {
  if (!typeInto(fields_.price, text, isPriceTyping(text))) return false;
  notify(Change::Fields);
  return true;
}

bool COrderEntryDlg::setWalkinClientCode(const std::string& text) {
  if (!typeInto(fields_.walkinClientCode, text, inCodeAlphabet(text))) return false;
  notify(Change::Fields);
  return true;
}

bool COrderEntryDlg::setWalkinParticipantCode(const std::string& text) {
  if (!typeInto(fields_.walkinParticipantCode, text, inCodeAlphabet(text))) return false;
  notify(Change::Fields);
  return true;
}

bool COrderEntryDlg::setClientCode(const std::string& text) {
  if (!typeInto(fields_.clientCode, text, true)) return false;
  accountChosen();
  notifyAll();
  return true;
}

bool COrderEntryDlg::setCutOff(bool ticked) {
  if (!fields_.cutOffEnabled) return false;
  fields_.cutOff = ticked;
  fields_.price = ticked ? EntryText{"MKT", false, true} : EntryText{};
  rebuildChoiceLists();
  notifyAll();
  return true;
}

bool COrderEntryDlg::selectOrderType(const std::string& entry) {
  if (!pick(fields_.orderType, entry)) return false;
  rebuildChoiceLists();
  notify(Change::Choices);
  return true;
}

bool COrderEntryDlg::selectClientType(const std::string& entry) {
  if (!pick(fields_.clientType, entry)) return false;
  clientTypeChanged();
  notifyAll();
  return true;
}

bool COrderEntryDlg::selectClientCategory(const std::string& entry) {
  if (!pick(fields_.clientCategory, entry)) return false;
  notify(Change::Choices);
  return true;
}

bool COrderEntryDlg::selectMargin(const std::string& entry) {
  if (!pick(fields_.margin, entry)) return false;
  notify(Change::Choices);
  return true;
}

bool COrderEntryDlg::selectParticipantCode(const std::string& entry) {
  if (!pick(fields_.participantCode, entry)) return false;
  notify(Change::Choices);
  return true;
}

void COrderEntryDlg::notify(Change change) {
  if (!listener_) return;
  if (change == Change::Fields) listener_->fieldsChanged();
  if (change == Change::Choices) listener_->choicesChanged();
  if (change == Change::Heading) listener_->headingChanged();
}

void COrderEntryDlg::notifyAll() {
  notify(Change::Fields);
  notify(Change::Choices);
}
