// "Add" / "&Modify": the entry is checked against the issue, then made into a row record with
// the client rules of its series and exchange. Each refusal names its field.
#include "basket/basket_manager.h"
#include "domain/issue_terms.h"
#include "domain/number_text.h"
#include "domain/prices.h"
#include "domain/quantity_rules.h"
#include "domain/series.h"

// One-letter flags are assigned as strings: gcc 12 at -O3 misreads a literal assignment as an
// overlapping copy (-Wrestrict).
using namespace std::string_literals;

using namespace basket_label;

bool CBasketManagerOFS::refuse(const std::string& message, const char* field) {
  if (field) port_.prompt().focus(field);
  port_.prompt().message(message);
  return false;
}

// The entry against the issue shown at the top.
bool CBasketManagerOFS::checkEntry() {
  const BasketFields& f = fields_;
  if (f.clientId.selected.empty()) return refuse("Please select AccountId", kClientId);
  if (f.quantity.text.empty()) return refuse("Please enter Quantity", kQuantity);
  if (!issue_ || issue_->issueId.empty()) return refuse("IssueID not found");
  if (f.price.text.empty()) return refuse("Please enter Price", kPrice);
  if (f.price.text == "0") {
    if (!f.cutOff) return refuse("Price cant be zero", kPrice);
    fields_.price.text = "MKT";
  }
  std::string message;
  if (f.price.text != "MKT" && !checkPriceTickPaise(f.price.text, message, tickPaiseOf(*issue_), 2))
    return refuse(message, kPrice);
  if (!checkQuantityMinimum(f.quantity.text, *issue_, message) ||
      !checkQuantityLot(f.quantity.text, *issue_, message, IssueNoun::Contract) ||
      !checkQuantityIssueSize(f.quantity.text, *issue_, message, IssueNoun::Contract))
    return refuse(message, kQuantity);
  return true;
}

void CBasketManagerOFS::add() {
  if (!checkEntry()) return changed();
  sOFSPlaceOrder row;
  if (!buildRow(row)) return changed();
  if (isEditing_ && editing_ < rows_.size()) {
    row.ticked = rows_[editing_].ticked;
    rows_[editing_] = std::move(row);
  } else {
    row.ticked = "N"s;
    rows_.insert(rows_.begin(), std::move(row));
  }
  entryDone();
}

void CBasketManagerOFS::entryDone() {
  addButton_ = "Add";
  isEditing_ = false;
  fields_.price = {};
  fields_.quantity = {};
  fields_.cutOff = false;
  showCount();
  port_.prompt().focus(kQuantity);
  changed(true);
}

// The order type list: without a selection the row is refused without a word; an empty one
// offers the two order types again.
bool CBasketManagerOFS::takeOrderType(sOFSPlaceOrder& row) {
  row.orderType = fields_.orderType.selected;
  if (!row.orderType.empty()) return true;
  fields_.orderType = {{"Non-institutional", "Retail"}, "Non-institutional", true};
  row.orderType = fields_.orderType.selected;
  return true;
}

bool CBasketManagerOFS::checkSeries(sOFSPlaceOrder& row, const std::string& series) {
  const bool noPCode = row.pCode.empty();
  if (series == "RS") {
    if (fields_.orderType.selected.empty()) return false;
    takeOrderType(row);
    if (!noPCode) {
      return refuse(row.orderType == "Non-institutional"
                        ? "Non-institutional orders are not allowed for institutional clients."
                        : "Retail orders are not allowed for institutional clients.");
    }
    fields_.margin.enabled = false;
    row.margin = "YES";
  } else if (series == "IS") {
    row.orderType.clear();
    fields_.orderType.enabled = false;
    if (row.clientType != "PRO" && fields_.participantCode.selected.empty())
      return refuse("Please Enter Participant Code", kParticipantCode);
    row.margin = noPCode || row.marginText != "No Margin" ? "YES" : "NO";
  } else {
    takeOrderType(row);
    if (noPCode) {
      fields_.margin.enabled = false;
      row.margin = "YES";
    }
  }
  return true;
}

bool CBasketManagerOFS::checkExchange(sOFSPlaceOrder& row) {
  if (row.exchange != "BSEIPO") {
    row.margin = row.pCode.empty() || row.marginText != "No Margin" ? "YES" : "NO";
    return true;
  }
  if (row.pCode.empty()) return refuse("Please enter Participant Code", kParticipantCode);
  takeOrderType(row);
  if (row.marginText.empty()) {
    fields_.margin.enabled = false;
    row.margin = "YES";
  } else {
    // Intended: the flag reads the participant code, not the margin, so a BSE row says "YES".
    row.margin = row.pCode == "No Margin" ? "NO" : "YES";
  }
  return true;
}

bool CBasketManagerOFS::checkPrice(sOFSPlaceOrder& row) {
  if (row.quantity.empty()) return refuse("Please enter some quantity", kQuantity);
  const PriceBand band = splitPriceRange(fields_.priceRange);
  if (row.price == "MKT") {
    row.marketFlag = "Y"s;
    return true;
  }
  row.marketFlag = "N"s;
  if (row.price.empty()) return refuse("Please enter price", kPrice);
  if (leadingDouble(row.price) < leadingDouble(band.floor)) {
    return refuse(
        "Price Should be more than Floor Price " + fixedText(leadingDouble(band.floor), 4), kPrice);
  }
  return true;
}

bool CBasketManagerOFS::buildRow(sOFSPlaceOrder& row) {
  row.cutOffText = fields_.cutOffText.text;
  row.exchange = fields_.exchange.text;
  row.clientType = "CLI";  // the basket has no Pro/Cli choice: its bids are for clients
  row.marginText = fields_.margin.selected;
  if (fields_.clientId.selected.empty()) {
    // Intended: the entry checks refused this already, so this step reports success.
    port_.prompt().focus(kClientId);
    port_.prompt().message("Please select AccountId");
    return true;
  }
  row.clientId = fields_.clientId.selected;
  row.pCode = fields_.participantCode.selected;
  row.symbol = fields_.issueId.text;
  row.issueId = issue_ ? issue_->issueId : std::string();
  row.series = seriesOfSymbol(row.symbol);
  row.quantity = fields_.quantity.text;
  row.price = fields_.price.text;
  if (!checkSeries(row, row.series) || !checkExchange(row) || !checkPrice(row)) return false;
  row.side = "B"s;
  row.proCli = row.clientType == "PRO" ? "PRO" : "CLI";
  row.userId = port_.userId();
  fields_.margin.enabled = true;
  row.screenName = row.exchange == "BSEIPO" ? "bse_ipo" : "nse_ipo";
  return true;
}
