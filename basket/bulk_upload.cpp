#include "basket/bulk_upload.h"

#include <memory>

#include "basket/bulk_bid_checks.h"
#include "basket/bulk_bid_readers.h"
#include "domain/issue_terms.h"
#include "messaging/order_requests.h"

using C = BidColumn;

void CBulkUpload::open(const sOFSCol* issue) {
  issue_ = issue;
  entry_ = BulkEntry{};
  cutOffAllowed_ = issue ? cutOffAllowanceOf(*issue) : std::string();
  if (issue) {
    entry_.ofsId = issue->issueId;
    entry_.exchange = issue->exchange == "bse_ipo" ? "BSEIPO" : "NSEIPO";
  }
  changed();
}

void CBulkUpload::selectKind(BidFileKind kind) {
  kind_ = kind;
  gridChanged();
}

void CBulkUpload::selectClientId(const std::string& account) {
  entry_.clientId = account;
  entry_.pCode = port_.participantCodeOf(account);
  changed();
}

void CBulkUpload::selectOrderType(const std::string& orderType) {
  entry_.orderType = orderType;
  if (!entry_.pCode.empty() && orderType == "Retail") {
    port_.prompt().message("Client with Pcode Cannot Place Retail Orders");
  } else if (!entry_.pCode.empty() && orderType == "Non-institutional") {
    entry_.orderType = "Institutional";
    port_.prompt().message(
        "Client with Pcode cannot place order in Non-institutional Order. Order Type is reset to "
        "Institutional");
  }
  changed();
}

BidContext CBulkUpload::context() const {
  // The accounts are asked for once a load: the host's client list is not cheap to walk.
  auto accounts = std::make_shared<BidLookups>();
  for (const std::string& account : port_.userAccounts()) {
    accounts->addAccount(account, port_.participantCodeOf(account));
  }
  const BidContext known = accounts->context();
  BidContext c;
  c.issueBySymbol = [this](std::string_view symbol, std::string_view series) {
    return port_.issueOfSymbol(std::string(symbol) + "-" + std::string(series));
  };
  c.issueById = [this](std::string_view id) { return port_.issueOfId(std::string(id)); };
  c.participantCodeOf = [accounts, f = known.participantCodeOf](std::string_view a) {
    return f(a);
  };
  c.knowsParticipantCode = [accounts, f = known.knowsParticipantCode](std::string_view p) {
    return f(p);
  };
  c.orderOf = [this](std::string_view n) { return port_.orderOfNumber(std::string(n)); };
  c.tmCode = port_.tmCode();
  if (issue_) c.listIssueId = issue_->issueId;
  return c;
}

void CBulkUpload::load(const std::string& path, const BidLoadProgress& progress) {
  status_ = " - Loading Basket. Please Wait.... ";
  changed();
  BidFileLoad load = loadBidFile(path, kind_, context(), progress);
  if (!load.opened) {
    status_.clear();
    changed();
    return port_.prompt().message("File Open Error");
  }
  std::vector<BidLine>& grid = shown();
  grid.reserve(grid.size() + load.rows.size());
  for (BidLine& row : load.rows) grid.push_back(std::move(row));
  takeRefusals(load);
  status_ =
      "Baskets Loaded Successfully " + std::to_string(load.rows.size()) + " Baskets are Retrieved";
  gridChanged();
}

// The VT kind reports each refusal as it comes, the others list them for export.
void CBulkUpload::takeRefusals(const BidFileLoad& load) {
  for (const BidRefusal& r : load.refusals) {
    if (kind_ == BidFileKind::Vt) {
      port_.prompt().message("OFS Basket Upload Error:" + r.message + " In Line Number " +
                             std::to_string(r.count));
    } else {
      refused_.push_back(r.message.empty() ? "failed to load"
                                           : "failed to load due to " + r.message);
    }
  }
}

void CBulkUpload::add() {
  PromptPort& prompt = port_.prompt();
  if (auto m = checkBulkEntry(entry_, issue_); !m.empty()) return prompt.message(m);
  BidLine row;
  std::string message = readVtLine(vtLineOf(entry_), row);
  if (message.empty()) message = checkBidLine(row, context());
  if (!message.empty()) return prompt.message(message);
  grids_[slot(BidFileKind::Vt)].push_back(std::move(row));
  gridChanged();
}

void CBulkUpload::place(const BulkPlaceProgress& progress) {
  PromptPort& prompt = port_.prompt();
  const std::vector<BidLine>& rows = shown();
  size_t& placed = placed_[slot(kind_)];
  if (placed >= rows.size()) return prompt.message("Please Select an Order");
  if (!prompt.question("Are you sure to place these Basket Orders?")) return;
  placeEnabled_ = false;
  changed();
  const BidContext c = context();
  const size_t first = placed;
  // Counted as each row goes, so that no row is sent twice whatever a send does.
  for (; placed < rows.size(); ++placed) {
    sendRow(rows[placed], c);
    if (progress) progress(placed + 1 - first, rows.size() - first);
  }
}

void CBulkUpload::sendRow(const BidLine& row, const BidContext& c) {
  sOFSPlaceOrder order = placeOrderOf(row, c);
  order.userId = port_.userId();
  const bool walkin = order.clientType == "WALKIN";
  const OrderContext oc = port_.orderContext();
  if (row.kind() != BidFileKind::NowModCxl) {
    const std::string price = order.price;
    walkin ? placeWalkinOrderBulk(oc, order, price) : placeOfsOrderBulk(oc, order, price);
    return;
  }
  const sOFSOrderInfo* named = port_.orderOfNumber(order.orderNumber);
  if (!named) return port_.prompt().message("Invalid order Number");
  if (row[C::ModCxl] == "C") {
    walkin ? cancelWalkinOrderBulk(oc, order) : cancelOfsOrderBulk(oc, order);
  } else {
    walkin ? modifyWalkinOrderBulk(oc, *named, order) : modifyOfsOrderBulk(oc, *named, order);
  }
}

void CBulkUpload::reset() {
  shown().clear();
  placed_[slot(kind_)] = 0;
  refused_.clear();
  status_.clear();
  gridChanged();
}

void CBulkUpload::deleteRow(size_t index) {
  std::vector<BidLine>& grid = shown();
  if (index >= grid.size()) return;
  grid.erase(grid.begin() + static_cast<std::ptrdiff_t>(index));
  if (index < placed_[slot(kind_)]) --placed_[slot(kind_)];
  gridChanged();
}

void CBulkUpload::gridChanged() {
  placeEnabled_ = true;
  changed(true);
}

void CBulkUpload::changed(bool rows) {
  if (!listener_) return;
  if (rows) listener_->rowsChanged();
  listener_->fieldsChanged();
}
