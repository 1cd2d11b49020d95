#include "basket/basket_manager.h"

#include "domain/char_classes.h"
#include "domain/issue_terms.h"
#include "domain/prices.h"
#include "domain/series.h"

// One-letter flags are assigned as strings: gcc 12 at -O3 misreads a literal assignment as an
// overlapping copy (-Wrestrict).
using namespace std::string_literals;

namespace {

bool choose(EntryChoice& choice, const std::string& entry) {
  if (!choice.enabled) return false;
  for (const std::string& item : choice.items) {
    if (item != entry) continue;
    choice.selected = entry;
    return true;
  }
  return false;
}

EntryChoice choiceOf(std::vector<std::string> items) {
  EntryChoice choice;
  choice.items = std::move(items);
  if (!choice.items.empty()) choice.selected = choice.items.front();
  return choice;
}

}  // namespace

void CBasketManagerOFS::open(const sOFSCol* issue) {
  issue_ = issue;
  const sOFSCol none;
  const sOFSCol& shown = issue ? *issue : none;
  fields_.exchange.text = shown.exchange == "bse_ipo" ? "BSEIPO" : "NSEIPO";
  fields_.companyName.text = shown.field49033;
  fields_.issueId.text = shown.symbol;
  fields_.openDate.text = shown.field49165;
  fields_.closeDate.text = shown.field79;
  fields_.minQty.text = shown.minQuantityText;
  fields_.cutOffText.text = cutOffAllowanceOf(shown);
  fields_.priceRange = issue ? priceRangeOf(shown) : std::string();
  fields_.clientId = choiceOf(port_.userAccounts());
  fields_.clientId.selected.clear();
  fields_.margin = choiceOf({"100% Margin", "No Margin"});
  fields_.participantCode = {};
  fillOrderTypes();
  fields_.quantity = {};
  fields_.price = {};
  fields_.cutOff = false;
  addButton_ = "Add";
  isEditing_ = false;
  showCount();
  changed();
}

// An "IS" issue takes no order type; every other series chooses one.
void CBasketManagerOFS::fillOrderTypes() {
  const std::string series = issue_ ? seriesOfSymbol(issue_->symbol) : std::string();
  if (series == "IS") {
    fields_.orderType = {};
    fields_.orderType.enabled = false;
    return;
  }
  fields_.orderType = choiceOf({"Non-institutional", "Retail"});
}

bool CBasketManagerOFS::setQuantity(const std::string& text) {
  if (!fields_.quantity.enabled || !isDigits(text)) return false;
  fields_.quantity.text = text;
  changed();
  return true;
}

bool CBasketManagerOFS::setPrice(const std::string& text) {
  if (!fields_.price.enabled || !isPriceTyping(text)) return false;
  fields_.price.text = text;
  changed();
  return true;
}

// A cut-off bid is at the market: its price reads "MKT" and cannot be typed.
bool CBasketManagerOFS::setCutOff(bool ticked) {
  fields_.cutOff = ticked;
  fields_.price.text = ticked ? "MKT"s : ""s;
  fields_.price.enabled = !ticked;
  changed();
  return true;
}

bool CBasketManagerOFS::selectClientId(const std::string& account) {
  if (!choose(fields_.clientId, account)) return false;
  const std::string pCode = port_.participantCodeOf(account);
  fields_.participantCode =
      choiceOf(pCode.empty() ? std::vector<std::string>{} : std::vector{pCode});
  changed();
  return true;
}

bool CBasketManagerOFS::selectOrderType(const std::string& entry) {
  const bool chosen = choose(fields_.orderType, entry);
  if (chosen) changed();
  return chosen;
}

bool CBasketManagerOFS::selectMargin(const std::string& entry) {
  const bool chosen = choose(fields_.margin, entry);
  if (chosen) changed();
  return chosen;
}

bool CBasketManagerOFS::selectParticipantCode(const std::string& entry) {
  const bool chosen = choose(fields_.participantCode, entry);
  if (chosen) changed();
  return chosen;
}

void CBasketManagerOFS::setTicked(size_t index, bool on) {
  if (index >= rows_.size()) return;
  rows_[index].ticked = on ? "Y"s : "N"s;
  changed(true);
}

void CBasketManagerOFS::editRow(size_t index) {
  if (index >= rows_.size()) return;
  const sOFSPlaceOrder& row = rows_[index];
  fields_.quantity = {row.quantity};
  fields_.cutOff = row.price == "MKT";
  fields_.price = {row.price, !fields_.cutOff};
  choose(fields_.clientId, row.clientId);
  fields_.participantCode =
      choiceOf(row.pCode.empty() ? std::vector<std::string>{} : std::vector{row.pCode});
  choose(fields_.orderType, row.orderType);
  choose(fields_.margin, row.marginText);
  editing_ = index;
  isEditing_ = true;
  addButton_ = "&Modify";
  changed();
}

void CBasketManagerOFS::reset() {
  rows_.clear();
  fields_.path.clear();
  open(issue_);
  placeEnabled_ = true;
  showCount();
  changed(true);
}

void CBasketManagerOFS::place() {
  std::vector<sOFSPlaceOrder*> ticked;
  for (sOFSPlaceOrder& row : rows_)
    if (row.ticked == "Y") ticked.push_back(&row);
  PromptPort& prompt = port_.prompt();
  if (ticked.empty()) return prompt.message("Please Select an Order");
  if (!prompt.question("Are you sure to place these Basket Orders?")) return;
  placeEnabled_ = false;
  changed();
  for (const sOFSPlaceOrder* row : ticked) {
    // A copy: the request writes its Pro/Cli letter back, and the row keeps what it shows.
    sOFSPlaceOrder order = *row;
    order.side = "B"s;
    order.margin = order.marginText == "No Margin" ? "NO" : "YES";
    order.marketFlag = order.price == "MKT" ? "Y"s : ""s;
    // The walk-in request names its client in 64916: the row's account is that client.
    if (order.walkinClientId.empty()) order.walkinClientId = order.clientId;
    if (const sOFSCol* issue = port_.issueOfSymbol(order.symbol)) order.issueId = issue->issueId;
    if (order.screenName == "NSEIPO") order.screenName = "nse_ipo";
    if (order.screenName == "BSEIPO") order.screenName = "bse_ipo";
    placeWalkinOrder(port_.orderContext(), order);
  }
  // The rows stay as they were, so the dealer may place them again.
  placeEnabled_ = true;
  changed();
}

void CBasketManagerOFS::showCount() {
  fields_.count = " Total : " + std::to_string(rows_.size());
}

void CBasketManagerOFS::changed(bool rows) {
  if (!listener_) return;
  if (rows) listener_->rowsChanged();
  listener_->fieldsChanged();
}
